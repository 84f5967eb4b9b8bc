#include "panel/properties.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace caleidoscopio {

namespace {

template <class T, auto Member>
Value member(const Control& control, int index) {
  return &(static_cast<T*>(control.element(index))->*Member);
}
template <auto Member>
Value place(const Control& control, int index) {
  return &(control.geometry(index).*Member);
}
Value interval(const Control& control, int index) {
  return IntervalOf{static_cast<Timer*>(control.element(index))};
}
Value enabled(const Control& control, int index) {
  return EnabledOf{static_cast<Timer*>(control.element(index))};
}

template <class T>
constexpr std::array framed{
    Property{"Caption", member<T, &T::Caption>},
    Property{"BackColor", member<T, &T::BackColor>},
    Property{"ForeColor", member<T, &T::ForeColor>},
    Property{"BorderStyle", member<T, &T::BorderStyle>},
    Property{"Enabled", member<T, &T::Enabled>},
    Property{"Visible", member<T, &T::Visible>},
    Property{"Left", place<&Geometry::Left>},
    Property{"Top", place<&Geometry::Top>},
    Property{"Width", place<&Geometry::Width>},
    Property{"Height", place<&Geometry::Height>},
};

constexpr auto labelProperties = [] {
  std::array<Property, framed<Label>.size() + 1> all{};
  for (std::size_t i = 0; i < framed<Label>.size(); ++i) all[i] = framed<Label>[i];
  all.back() = {"FontSize", place<&Geometry::FontSize>};
  return all;
}();

constexpr std::array shapeProperties{
    Property{"Visible", member<Shape, &Shape::Visible>},
    Property{"Left", place<&Geometry::Left>},
    Property{"Top", place<&Geometry::Top>},
    Property{"Width", place<&Geometry::Width>},
    Property{"Height", place<&Geometry::Height>},
    Property{"BorderColor", member<Shape, &Shape::BorderColor>},
    Property{"BorderWidth", member<Shape, &Shape::BorderWidth>},
};

constexpr std::array imageProperties{
    Property{"Visible", member<Image, &Image::Visible>},
    Property{"Left", place<&Geometry::Left>},
    Property{"Top", place<&Geometry::Top>},
    Property{"Width", place<&Geometry::Width>},
    Property{"Height", place<&Geometry::Height>},
};

constexpr std::array textBoxProperties{
    Property{"BackColor", member<TextBox, &TextBox::BackColor>},
    Property{"ForeColor", member<TextBox, &TextBox::ForeColor>},
    Property{"BorderStyle", member<TextBox, &TextBox::BorderStyle>},
    Property{"Enabled", member<TextBox, &TextBox::Enabled>},
    Property{"Visible", member<TextBox, &TextBox::Visible>},
    Property{"Left", place<&Geometry::Left>},
    Property{"Top", place<&Geometry::Top>},
    Property{"Width", place<&Geometry::Width>},
    Property{"Height", place<&Geometry::Height>},
    Property{"FontSize", place<&Geometry::FontSize>},
    Property{"Text", member<TextBox, &TextBox::Text>},
};

constexpr std::array timerProperties{Property{"Interval", interval}, Property{"Enabled", enabled}};

std::string_view trimmed(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

bool equalIgnoringCase(std::string_view a, std::string_view upper) {
  if (a.size() != upper.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const char c = a[i] >= 'a' && a[i] <= 'z' ? static_cast<char>(a[i] - 'a' + 'A') : a[i];
    if (c != upper[i]) return false;
  }
  return true;
}

std::optional<bool> flag(std::string_view text) {
  if (equalIgnoringCase(text, "#TRUE#")) return true;
  if (equalIgnoringCase(text, "#FALSE#")) return false;
  return std::nullopt;
}

/// A decimal number with a point and no exponent.
std::optional<double> fraction(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  double number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
    return std::nullopt;
  return number;
}

std::string fractionText(double number) {
  // Not by way of printf, whose decimal point is the locale's: a window's toolkit may set one.
  std::array<char, 400> digits{};
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                          std::chars_format::fixed, 6);
  std::string text(digits.data(), error == std::errc() ? end : digits.data());
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

struct Writer {
  std::string operator()(const std::string* text) const { return '"' + *text + '"'; }
  std::string operator()(const Colour* colour) const {
    return std::to_string(static_cast<std::int32_t>(colour->value));
  }
  std::string operator()(const std::int32_t* number) const { return std::to_string(*number); }
  std::string operator()(const bool* flag) const { return *flag ? "#TRUE#" : "#FALSE#"; }
  std::string operator()(const Twips* length) const { return fractionText(length->value); }
  std::string operator()(const Points* size) const { return fractionText(size->value); }
  std::string operator()(IntervalOf of) const { return std::to_string(of.timer->Interval()); }
  std::string operator()(EnabledOf of) const { return of.timer->Enabled() ? "#TRUE#" : "#FALSE#"; }
};

constexpr std::string_view wholeExpected = "a whole number of 32 bits";
constexpr std::string_view flagExpected = "#TRUE# or #FALSE#";
constexpr std::string_view fractionExpected = "a number";
using Fault = std::optional<std::string_view>;

template <class Parsed, class Write>
Fault take(Parsed parsed, std::string_view expected, Write write) {
  if (!parsed) return expected;
  write(*parsed);
  return std::nullopt;
}

struct Assigner {
  std::string_view written;
  Fault operator()(std::string* text) const {
    *text = written;
    return std::nullopt;
  }
  Fault operator()(Colour* colour) const {
    return take(wholeNumber(written), wholeExpected,
                [&](std::int32_t n) { colour->value = static_cast<std::uint32_t>(n); });
  }
  Fault operator()(std::int32_t* number) const {
    return take(wholeNumber(written), wholeExpected, [&](std::int32_t n) { *number = n; });
  }
  Fault operator()(bool* target) const {
    return take(flag(trimmed(written)), flagExpected, [&](bool on) { *target = on; });
  }
  Fault operator()(Twips* length) const {
    return take(fraction(trimmed(written)), fractionExpected, [&](double n) { length->value = n; });
  }
  Fault operator()(Points* size) const {
    return take(fraction(trimmed(written)), fractionExpected, [&](double n) { size->value = n; });
  }
  Fault operator()(IntervalOf of) const {
    return take(wholeNumber(written), wholeExpected,
                [&](std::int32_t n) { of.timer->setInterval(n); });
  }
  Fault operator()(EnabledOf of) const {
    return take(flag(trimmed(written)), flagExpected, [&](bool on) { of.timer->setEnabled(on); });
  }
};

}  // namespace

std::span<const Property> propertiesOf(Kind kind) {
  switch (kind) {
    case Kind::Window:
    case Kind::Frame:
      return framed<Frame>;
    case Kind::Label:
      return labelProperties;
    case Kind::Shape:
      return shapeProperties;
    case Kind::Image:
      return imageProperties;
    case Kind::TextBox:
      return textBoxProperties;
    case Kind::Timer:
      return timerProperties;
  }
  return {};
}

std::optional<Value> propertyOf(const Control& control, int index, std::string_view property) {
  for (const Property& p : propertiesOf(control.kind()))
    if (p.name == property) return p.of(control, index);
  return std::nullopt;
}

bool isText(const Value& value) {
  return std::holds_alternative<std::string*>(value);
}

std::string toText(const Value& value) {
  return std::visit(Writer{}, value);
}

std::optional<std::string_view> assign(const Value& value, std::string_view written) {
  return std::visit(Assigner{written}, value);
}

std::optional<std::int32_t> wholeNumber(std::string_view text) {
  text = trimmed(text);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace caleidoscopio
