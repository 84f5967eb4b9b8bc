#include "panel/timers.h"

#include <algorithm>
#include <string>

#include "panel/end_run.h"

namespace caleidoscopio {

namespace {
std::uint64_t later(std::uint64_t moment, std::uint64_t ms) {
  return ms > Time::never - moment ? Time::never : moment + ms;
}
}  // namespace

Timer::Timer(Time& time, std::int32_t interval) : time_(time), interval_(interval) {}

void Timer::begin() {
  began_ = time_.now_;
  due_ = interval_ > 0 ? later(began_, static_cast<std::uint64_t>(interval_)) : Time::never;
}

void Timer::setEnabled(bool on) {
  if (on && !enabled_) begin();
  enabled_ = on;
}

void Timer::setInterval(std::int64_t ms) {
  if (ms < std::numeric_limits<std::int32_t>::min() ||
      ms > std::numeric_limits<std::int32_t>::max())
    endRun("an interval of " + std::to_string(ms) + " ms; expected a number of 32 bits");
  if (ms == interval_) return;
  interval_ = static_cast<std::int32_t>(ms);
  due_ = interval_ > 0 ? std::max(later(began_, static_cast<std::uint64_t>(interval_)), time_.now_)
                       : Time::never;
}

TimerControl::TimerControl(Group& group, Time& time, std::string_view name, std::int32_t interval)
    : Control(group, name, Kind::Timer, 0, 0, true, static_cast<Timer*>(this), sizeof(Timer),
              nullptr),
      Timer(time, interval) {
  time.timers_.push_back({this, this});
}

const Time::Entry* Time::earliest() const {
  const Entry* first = nullptr;
  for (const Entry& entry : timers_) {
    if (!entry.timer->enabled_ || entry.timer->due_ == never) continue;
    if (!first || entry.timer->due_ < first->timer->due_) first = &entry;
  }
  return first;
}

std::uint64_t Time::nextDue() const {
  const Entry* first = earliest();
  return first ? first->timer->due_ : never;
}

void Time::fire(const Entry& entry) {
  // The next period begins before the handler runs, so that what the handler writes holds.
  entry.timer->begin();
  entry.control->raise(Event::Tick);
}

void Time::advance(std::uint64_t ms) {
  const std::uint64_t end = later(now_, ms);
  // A handler may start, stop or re-time any timer: what is due is asked anew after each.
  for (const Entry* next = earliest(); next && next->timer->due_ <= end; next = earliest()) {
    now_ = std::max(now_, next->timer->due_);
    fire(*next);
  }
  now_ = end;
}

void Time::catchUp(std::uint64_t now) {
  now_ = std::max(now_, now);
  for (const Entry* next = earliest(); next && next->timer->due_ <= now_; next = earliest())
    fire(*next);
}

}  // namespace caleidoscopio
