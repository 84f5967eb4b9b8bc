#include "desktop/driver.h"

#include <algorithm>
#include <limits>

#include "platform/run_ended.h"

namespace caleidoscopio {

Driver::Driver(Platform& platform, QObject* parent) : QObject(parent), instrument_(platform) {
  clock_.start();
  next_.setSingleShot(true);
  next_.setTimerType(Qt::PreciseTimer);
  connect(&next_, &QTimer::timeout, this, [this] { enter([] {}); });
}

std::uint64_t Driver::now() const {
  return static_cast<std::uint64_t>(clock_.elapsed());
}

void Driver::start() {
  enter([this] { instrument_.start(); });
}

void Driver::raise(const Control& control, Event event, int index, int argument) {
  enter([&] { control.raise(event, index, argument); });
}

void Driver::enter(const std::function<void()>& work) {
  if (runEnded_) return;
  try {
    // What fell due before the event comes before it.
    store().time.catchUp(now());
    work();
  } catch (const RunEnded& end) {
    runEnded_ = true;
    next_.stop();
    emit changed();
    emit faulted(QString::fromUtf8(end.what()));
    return;
  }
  arm();
  emit changed();
}

void Driver::arm() {
  const std::uint64_t due = store().time.nextDue();
  if (due == Time::never) {
    next_.stop();
    return;
  }
  const std::uint64_t present = now();
  const std::uint64_t wait = due > present ? due - present : 0;
  next_.start(static_cast<int>(std::min<std::uint64_t>(wait, std::numeric_limits<int>::max())));
}

}  // namespace caleidoscopio
