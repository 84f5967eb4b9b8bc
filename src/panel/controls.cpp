#include "panel/controls.h"

#include <cassert>
#include <utility>

#include "panel/end_run.h"

namespace caleidoscopio {

Control::Control(Group& group, std::string_view name, Kind kind, int first, int last, bool single,
                 void* elements, std::size_t stride, Geometry* geometry)
    : name_(name),
      kind_(kind),
      first_(first),
      last_(last),
      single_(single),
      elements_(elements),
      stride_(stride),
      geometry_(geometry) {
  group.add(*this);
}

std::string Control::nameOf(int index) const {
  std::string text(name_);
  if (!single_) text += "(" + std::to_string(index) + ")";
  return text;
}

void* Control::element(int index) const {
  if (!contains(index)) outside(index);
  return static_cast<char*>(elements_) + static_cast<std::size_t>(index - first_) * stride_;
}

Geometry& Control::geometry(int index) const {
  if (!contains(index)) outside(index);
  assert(geometry_ && "a timer has no place");
  return geometry_[index - first_];
}

bool Control::visible(int index) const {
  const void* at = element(index);
  switch (kind_) {
    case Kind::Window:
    case Kind::Frame:
    case Kind::Label:
      return static_cast<const Frame*>(at)->Visible;
    case Kind::Shape:
      return static_cast<const Shape*>(at)->Visible;
    case Kind::Image:
      return static_cast<const Image*>(at)->Visible;
    case Kind::TextBox:
      return static_cast<const TextBox*>(at)->Visible;
    case Kind::Timer:
      break;
  }
  return false;
}

int Control::indexOf(const void* address) const {
  const auto* at = static_cast<const char*>(address);
  const auto* begin = static_cast<const char*>(elements_);
  const auto count = static_cast<std::size_t>(last_ - first_ + 1);
  if (std::less<>()(at, begin) || !std::less<>()(at, begin + count * stride_)) return -1;
  return first_ + static_cast<int>(static_cast<std::size_t>(at - begin) / stride_);
}

void Control::tie(Event event, int first, int last, Handler handler) {
  assert(contains(first) && contains(last));
  for ([[maybe_unused]] int i = first; i <= last; ++i)
    assert(!handles(event, i) && "one event of an element has one handler");
  tied_[static_cast<std::size_t>(event)].push_back({first, last, std::move(handler)});
}

const Control::Tied* Control::tiedTo(Event event, int index) const {
  for (const Tied& tied : tied_[static_cast<std::size_t>(event)])
    if (tied.first <= index && index <= tied.last) return &tied;
  return nullptr;
}

bool Control::handles(Event event, int index) const {
  return tiedTo(event, index) != nullptr;
}

void Control::raise(Event event, int index, int argument) const {
  if (!contains(index)) outside(index);
  if (const Tied* tied = tiedTo(event, index)) tied->run(argument);
}

void Control::click(const Number& index) const {
  if (index < first_ || index > last_) outside(index);
  raise(Event::Click, static_cast<int>(index));
}

void Control::outside(const Number& index) const {
  endRun(std::string(name_) + "(" + std::to_string(index) + "): no such element; expected " +
         std::to_string(first_) + " to " + std::to_string(last_) + index.source());
}

}  // namespace caleidoscopio
