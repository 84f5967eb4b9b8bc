#pragma once

#include <concepts>
#include <cstdint>
#include <string>

namespace caleidoscopio {

class ControlList;
struct Frame;

/// A number that knows which caption it was read from, so that the message of a run that it ends
/// can name the culprit. Steps up and down keep that; any other sum is a plain number.
class Number {
 public:
  constexpr Number(std::int64_t plain) : value_(plain), read_(plain) {}
  Number(std::int64_t read, const ControlList& controls, const Frame& holder)
      : value_(read), read_(read), controls_(&controls), holder_(&holder) {}

  constexpr operator std::int64_t() const { return value_; }
  /// `; lblSeq(4).Caption is "0"`, as it was read, to end a message with; empty for a plain number.
  std::string source() const;
  /// Another number that the same caption answers for.
  Number becoming(std::int64_t value) const {
    Number other = *this;
    other.value_ = value;
    return other;
  }

  template <std::integral Step>
  friend Number operator+(const Number& n, Step step) {
    return n.becoming(n.value_ + step);
  }
  template <std::integral Step>
  friend Number operator-(const Number& n, Step step) {
    return n.becoming(n.value_ - step);
  }

 private:
  std::int64_t value_;
  std::int64_t read_;
  const ControlList* controls_ = nullptr;
  const Frame* holder_ = nullptr;
};

}  // namespace caleidoscopio
