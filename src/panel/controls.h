#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "panel/number.h"
#include "panel/values.h"

namespace caleidoscopio {

/// Where an element stands in its parent, and the size of its letters if it has any. It lies apart
/// from the element: the ticks never ask for it, and without it two planes of cells fit the first
/// cache of a processor.
struct Geometry {
  Twips Left, Top, Width, Height;
  Points FontSize;
};

/// What a frame or a window shows.
struct Frame {
  std::string Caption;
  Colour BackColor = colours::unselected;
  Colour ForeColor = colours::black;
  std::int32_t BorderStyle = 0;
  bool Enabled = true;
  bool Visible = true;  ///< the control's own flag, whatever its frame's
};
struct Window : Frame {};

/// A label or a button.
struct Label : Frame {};

/// An outline.
struct Shape {
  bool Visible = true;
  Colour BorderColor = colours::black;
  std::int32_t BorderWidth = 1;
};

struct Image {
  bool Visible = true;
};

struct TextBox {
  Colour BackColor = colours::unselected;
  Colour ForeColor = colours::black;
  std::int32_t BorderStyle = 1;
  bool Enabled = true;
  bool Visible = true;
  std::string Text;
};

class Timer;

enum class Kind { Window, Frame, Label, Shape, Image, TextBox, Timer };

template <class T>
constexpr Kind kindOf();
template <>
constexpr Kind kindOf<Window>() {
  return Kind::Window;
}
template <>
constexpr Kind kindOf<Frame>() {
  return Kind::Frame;
}
template <>
constexpr Kind kindOf<Label>() {
  return Kind::Label;
}
template <>
constexpr Kind kindOf<Shape>() {
  return Kind::Shape;
}
template <>
constexpr Kind kindOf<Image>() {
  return Kind::Image;
}
template <>
constexpr Kind kindOf<TextBox>() {
  return Kind::TextBox;
}
template <>
constexpr Kind kindOf<Timer>() {
  return Kind::Timer;
}

/// What can happen to a control. The handler of KeyDown and KeyPress is handed the key's code,
/// every other the element's index (0 for a single control).
enum class Event { Click, MouseDown, MouseUp, MouseMove, KeyDown, KeyPress, Tick };
inline constexpr std::size_t eventCount = 7;

class Control;

/// The controls that one folder declares, in the order in which it declares them.
class Group {
 public:
  Group() = default;
  Group(const Group&) = delete;
  Group& operator=(const Group&) = delete;
  void add(Control& control) { controls_.push_back(&control); }
  const std::vector<Control*>& controls() const { return controls_; }

 private:
  std::vector<Control*> controls_;
};

/// A control or an array of controls as text knows it: a name, bounds, and the handlers tied to
/// its events. Whoever wants an event, a mouse, a script or an engine, comes through raise().
class Control {
 public:
  using Handler = std::function<void(int)>;

  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  std::string_view name() const { return name_; }
  Kind kind() const { return kind_; }
  int first() const { return first_; }
  int last() const { return last_; }
  bool single() const { return single_; }
  bool contains(int index) const { return first_ <= index && index <= last_; }
  /// `lblVelo(1)`, or the bare name of a single control.
  std::string nameOf(int index) const;

  /// The element itself, for the tables of properties. Ends the run outside the bounds.
  void* element(int index) const;
  /// Where the element stands. Ends the run outside the bounds; a timer has no place.
  Geometry& geometry(int index = 0) const;
  /// The element's own flag, whatever its frame's. Ends the run outside the bounds; a timer shows
  /// nothing.
  bool visible(int index = 0) const;
  /// The index of the element that lies at `address`, or -1 when it is none of this control's.
  int indexOf(const void* address) const;

  /// Ties `handler` to an event of the elements from `first` to `last`, which have none yet.
  void tie(Event event, int first, int last, Handler handler);
  /// True if the element has a handler for the event.
  bool handles(Event event, int index = 0) const;
  /// Runs the handler of the event; an element without one does nothing. `index` is checked
  /// against the bounds and ends the run outside them; `argument` is what the handler gets.
  void raise(Event event, int index, int argument) const;
  void raise(Event event, int index = 0) const { raise(event, index, index); }
  /// A click where the index was read from a caption: outside the bounds the message names it.
  void click(const Number& index) const;

 protected:
  Control(Group& group, std::string_view name, Kind kind, int first, int last, bool single,
          void* elements, std::size_t stride, Geometry* geometry);
  ~Control() = default;
  [[noreturn]] void outside(const Number& index) const;

 private:
  struct Tied {
    int first, last;
    Handler run;
  };
  const Tied* tiedTo(Event event, int index) const;
  std::string_view name_;
  Kind kind_;
  int first_;
  int last_;
  bool single_;
  void* elements_;
  std::size_t stride_;
  Geometry* geometry_;
  std::vector<Tied> tied_[eventCount];
};

/// The click of a control, as a user would make it.
inline void click(const Control& control, int index = 0) {
  control.raise(Event::Click, index);
}

/// The same where the index was read from a caption.
inline void click(const Control& control, const Number& index) {
  control.click(index);
}

/// An array of controls with the bounds that its users know. Defaults are handed over in
/// declaration order and are applied to each element in turn.
template <class T, int First, int Last>
class Row : public Control {
 public:
  template <class... Defaults>
  Row(Group& group, std::string_view name, const Defaults&... defaults)
      : Control(group, name, kindOf<T>(), First, Last, false, elements_, sizeof(T), geometry_) {
    for (int i = First; i <= Last; ++i) (defaults.apply(elements_[i - First], i), ...);
  }
  /// Ends the run with the array's name and the index when the index lies outside.
  T& operator[](std::int64_t index) {
    if (index < First || index > Last) [[unlikely]]
      outside(index);
    return elements_[index - First];
  }
  /// The same, and the message names the caption that the index was read from.
  T& operator[](const Number& index) {
    if (index < First || index > Last) [[unlikely]]
      outside(index);
    return elements_[index - First];
  }
  const T& operator[](std::int64_t index) const { return const_cast<Row&>(*this)[index]; }
  const T& operator[](const Number& index) const { return const_cast<Row&>(*this)[index]; }

 private:
  T elements_[Last - First + 1];
  Geometry geometry_[Last - First + 1];
};

/// A control that is no array.
template <class T>
class Single : public Control, public T {
 public:
  template <class... Defaults>
  Single(Group& group, std::string_view name, const Defaults&... defaults)
      : Control(group, name, kindOf<T>(), 0, 0, true, static_cast<T*>(this), sizeof(T),
                &geometry_) {
    (defaults.apply(static_cast<T&>(*this), 0), ...);
  }

 private:
  Geometry geometry_;
};

template <int First, int Last>
using Labels = Row<Label, First, Last>;
using OneLabel = Single<Label>;

// The words in which the panels' drawings give their defaults.

/// The same caption on every element.
struct Caption {
  std::string_view text;
  void apply(Frame& f, int) const { f.Caption = text; }
};
/// Captions from the element `first` on; elements beyond the list keep theirs.
struct Captions {
  int first;
  std::initializer_list<std::string_view> texts;
  void apply(Frame& f, int i) const {
    if (i >= first && i - first < static_cast<int>(texts.size()))
      f.Caption = texts.begin()[i - first];
  }
};
/// The index times `step`, plus `plus`, as the caption of the elements `first` to `last`.
struct Numbered {
  int first, last;
  int step = 1, plus = 0;
  void apply(Frame& f, int i) const {
    if (i >= first && i <= last) f.Caption = std::to_string(i * step + plus);
  }
};
struct Back {
  Colour colour;
  void apply(Frame& f, int) const { f.BackColor = colour; }
};
struct BackAt {
  std::initializer_list<int> indices;
  Colour colour;
  void apply(Frame& f, int i) const {
    for (int at : indices)
      if (at == i) f.BackColor = colour;
  }
};
struct Fore {
  Colour colour;
  void apply(Frame& f, int) const { f.ForeColor = colour; }
};
struct ForeAt {
  int index;
  Colour colour;
  void apply(Frame& f, int i) const {
    if (i == index) f.ForeColor = colour;
  }
};
struct Border {
  int style = 1;
  void apply(Frame& f, int) const { f.BorderStyle = style; }
};
struct BorderAt {
  std::initializer_list<int> indices;
  void apply(Frame& f, int i) const {
    for (int at : indices)
      if (at == i) f.BorderStyle = 1;
  }
};
struct Width {
  std::int32_t pixels;
  void apply(Shape& shape, int) const { shape.BorderWidth = pixels; }
};
struct Hidden {
  template <class T>
  void apply(T& control, int) const {
    control.Visible = false;
  }
};
struct HiddenAt {
  std::initializer_list<int> indices;
  template <class T>
  void apply(T& control, int i) const {
    for (int at : indices)
      if (at == i) control.Visible = false;
  }
};

}  // namespace caleidoscopio
