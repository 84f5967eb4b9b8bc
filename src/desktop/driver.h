#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

#include "instrument.h"

namespace caleidoscopio {

/// Drives the instrument by the real clock. Everything that a person or a timer does enters the
/// instrument here and nowhere else, so that what ends the run is caught in one place and never
/// crosses the toolkit's event loop.
class Driver : public QObject {
  Q_OBJECT
 public:
  explicit Driver(Platform& platform, QObject* parent = nullptr);

  Store& store() { return instrument_.s; }
  const Store& store() const { return instrument_.s; }

  /// The instrument's start-up, in full.
  void start();
  /// Moves time on to the present, then raises the event. Does nothing once the run has ended.
  void raise(const Control& control, Event event, int index, int argument);
  void raise(const Control& control, Event event, int index) {
    raise(control, event, index, index);
  }

  bool runEnded() const { return runEnded_; }

 signals:
  /// A handler has run to its end: what is shown may differ from what is there.
  void changed();
  /// Bad data ended the run; nothing enters the instrument any more.
  void faulted(const QString& message);

 private:
  void enter(const std::function<void()>& work);
  std::uint64_t now() const;
  void arm();

  Instrument instrument_;
  QElapsedTimer clock_;
  QTimer next_;  ///< set to the next due moment
  bool runEnded_ = false;
};

}  // namespace caleidoscopio
