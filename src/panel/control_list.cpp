#include "panel/control_list.h"

#include <cassert>
#include <charconv>

namespace caleidoscopio {

void ControlList::add(const Group& group) {
  for (Control* control : group.controls()) {
    all_.push_back(control);
    [[maybe_unused]] const bool fresh = byName_.emplace(control->name(), control).second;
    assert(fresh && "a name stands for one control");
  }
}

Control* ControlList::find(std::string_view name) const {
  const auto at = byName_.find(name);
  return at == byName_.end() ? nullptr : at->second;
}

std::string ControlList::nameOf(const void* address) const {
  for (const Control* control : all_)
    if (const int index = control->indexOf(address); index >= 0) return control->nameOf(index);
  return "?";
}

Found<Element> ControlList::element(std::string_view text) const {
  const std::size_t bracket = text.find('(');
  const std::string_view name = text.substr(0, bracket);
  Control* control = find(name);
  if (!control) return "unknown control " + std::string(name);
  if (bracket == std::string_view::npos) {
    if (!control->single()) return std::string(name) + " needs an index";
    return Element{control, 0};
  }
  if (control->single()) return std::string(name) + " takes no index";
  const std::string_view digits = text.substr(bracket + 1);
  int index = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
  const std::string_view rest(end, static_cast<std::size_t>(digits.data() + digits.size() - end));
  if (error != std::errc() || rest != ")") return "malformed index in " + std::string(text);
  if (!control->contains(index)) return "unknown index in " + std::string(text);
  return Element{control, index};
}

Found<Value> ControlList::property(std::string_view text) const {
  const std::size_t dot = text.rfind('.');
  if (dot == std::string_view::npos) return "no property named in " + std::string(text);
  const auto found = element(text.substr(0, dot));
  if (const auto* why = std::get_if<std::string>(&found)) return *why;
  const auto [control, index] = std::get<Element>(found);
  const auto value = propertyOf(*control, index, text.substr(dot + 1));
  if (!value) return "unknown property in " + std::string(text);
  return *value;
}

}  // namespace caleidoscopio
