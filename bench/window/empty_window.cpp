// An empty window of the toolkit that fills the screen: what the program's start-up and memory are
// measured against.

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace {

class EmptyWindow : public QWidget {
 public:
  EmptyWindow() { setAttribute(Qt::WA_OpaquePaintEvent); }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::darkGreen); }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  EmptyWindow window;
  window.setGeometry(QGuiApplication::primaryScreen()->geometry());
  window.showFullScreen();
  return app.exec();
}
