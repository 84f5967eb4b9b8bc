#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "panel/controls.h"
#include "panel/timers.h"

namespace caleidoscopio {

/// A timer's Interval or Enabled. They are written through the timer, which re-times itself.
struct IntervalOf {
  Timer* timer;
};
struct EnabledOf {
  Timer* timer;
};

/// One property of one control, to be read and written as text.
using Value = std::variant<std::string*, Colour*, std::int32_t*, bool*, Twips*, Points*, IntervalOf,
                           EnabledOf>;

struct Property {
  std::string_view name;
  Value (*of)(const Control& control, int index);
};

/// The properties of a kind of control, in the order in which they are listed.
std::span<const Property> propertiesOf(Kind kind);
/// The named property of an element, or nothing when its kind has none of that name. Ends the run
/// outside the control's bounds.
std::optional<Value> propertyOf(const Control& control, int index, std::string_view property);

/// True for a property that holds text.
bool isText(const Value& value);
/// The value as memory files write it: text between double quotes, a number in signed decimal, a
/// colour as 32 bits signed, a flag as #TRUE# or #FALSE#, a length with at most six decimals.
std::string toText(const Value& value);
/// Writes a value that is no text from its written form, with blanks around it allowed. Returns
/// what was expected when the form is wrong; nothing is written then.
std::optional<std::string_view> assign(const Value& value, std::string_view written);

/// A whole number of 32 bits, signed: plain decimal, a sign and blanks around it allowed.
std::optional<std::int32_t> wholeNumber(std::string_view text);

}  // namespace caleidoscopio
