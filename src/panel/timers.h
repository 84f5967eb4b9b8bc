#pragma once

#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "panel/controls.h"

namespace caleidoscopio {

class Time;

/// A timer of the panel. Writing Enabled and Interval goes through set functions, since both can
/// move the moment at which it is due.
class Timer {
 public:
  bool Enabled() const { return enabled_; }
  /// Milliseconds; 0 or less never fires.
  std::int32_t Interval() const { return interval_; }

  /// Turning on a timer that was off starts a full period; on one that is on it changes nothing.
  void setEnabled(bool on);
  /// Re-times the period under way: it now ends `ms` after it began, or is due at once if that
  /// moment is past. The length that it has already changes nothing. Ends the run beyond 32 bits.
  void setInterval(std::int64_t ms);

 protected:
  Timer(Time& time, std::int32_t interval);

 private:
  friend class Time;
  void begin();

  Time& time_;
  std::int32_t interval_;
  bool enabled_ = false;
  std::uint64_t began_ = 0;
  std::uint64_t due_ = 0;
};

/// Virtual time in milliseconds and the timers that run in it. A face moves it: the console by
/// hand, the window by the real clock.
class Time {
 public:
  static constexpr std::uint64_t never = std::numeric_limits<std::uint64_t>::max();

  std::uint64_t now() const { return now_; }
  /// The moment at which the next timer is due; `never` when none runs.
  std::uint64_t nextDue() const;

  /// Moves time on by `ms`, from due moment to due moment; every timer that falls due fires, the
  /// earliest first, those of one moment in the order in which they were declared.
  void advance(std::uint64_t ms);
  /// Sets time to `now` (nothing happens if that is past) and fires what is due, each late timer
  /// once: missed periods are not made up for.
  void catchUp(std::uint64_t now);

 private:
  friend class Timer;
  friend class TimerControl;
  struct Entry {
    Timer* timer;
    const Control* control;
  };
  const Entry* earliest() const;
  void fire(const Entry& entry);

  std::uint64_t now_ = 0;
  std::vector<Entry> timers_;  // in the order of firing within one moment
};

/// A timer as one of the panel's controls. Its handler is tied to Event::Tick.
class TimerControl : public Control, public Timer {
 public:
  TimerControl(Group& group, Time& time, std::string_view name, std::int32_t interval);
};

}  // namespace caleidoscopio
