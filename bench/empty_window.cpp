// What any program with a window and a menu pays: the yardstick for tools/measure.py.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>

namespace {

class PaintedBoard : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    for (int cell = 0; cell < 64; ++cell) {
      const int column = cell % 8;
      const int row = cell / 8;
      painter.fillRect(column * 65, row * 65, 65, 65,
                       (column + row) % 2 == 0 ? Qt::red : Qt::black);
    }
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
  QMainWindow window;
  window.menuBar()->addMenu("File")->addAction("Exit");
  window.menuBar()->addMenu("Help")->addAction("About");
  auto* board = new PaintedBoard;
  board->setFixedSize(520, 520);
  board->setMouseTracking(true);
  window.setCentralWidget(board);
  window.show();
  return QApplication::exec();
}
