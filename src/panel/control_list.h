#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "panel/controls.h"
#include "panel/properties.h"

namespace caleidoscopio {

/// An element of a control, named in text.
struct Element {
  Control* control = nullptr;
  int index = 0;
};

/// What a name in a text led to, or why it led nowhere.
template <class T>
using Found = std::variant<T, std::string>;

/// Every control of the panel by name. The console, the record of a memory, the placement table
/// and the window all find their controls here; nobody keeps a list of names besides it.
class ControlList {
 public:
  void add(const Group& group);

  /// All controls, in the order in which they were added.
  const std::vector<Control*>& all() const { return all_; }
  /// The control of that name, compared byte by byte, or null.
  Control* find(std::string_view name) const;
  /// The name, with its index, of the element that `address` lies in; `?` when it lies in none.
  std::string nameOf(const void* address) const;

  /// `lblVelo(1)` or `cmdGoTimer`.
  Found<Element> element(std::string_view text) const;
  /// `lblVelo(1).Caption`, `form.BackColor`, `TmrGoA.Interval`.
  Found<Value> property(std::string_view text) const;

 private:
  std::vector<Control*> all_;
  std::unordered_map<std::string_view, Control*> byName_;
};

}  // namespace caleidoscopio
