#include "desktop/message_box.h"

#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <cmath>

namespace {

// Longer lines are paragraphs, which the box has to wrap. It only does so if it gets wider than 500
// pixels; otherwise it cuts them.
constexpr int LongestBrokenLine = 80;
constexpr double ParagraphWidth = 500;

/// The width to which Qt limits a box. What does not fit is cut.
int WidestBox(int screenWidth) {
  return screenWidth <= 1024 ? screenWidth : std::min(screenWidth - 480, 1000);
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Stop:
      return QMessageBox::Critical;
    case MessageIcon::Warning:
      return QMessageBox::Warning;
    case MessageIcon::Information:
      break;
  }
  return QMessageBox::Information;
}

QString TextOf(const std::string& text) {
  return QString::fromStdString(text).replace("\r\n", "\n");
}

/// Puts each paragraph on one line, for the box to wrap. Blank lines separate paragraphs.
QString JoinBrokenLines(QString text) {
  static const QRegularExpression singleBreak("(?<!\n)\n(?!\n)");
  return text.replace(singleBreak, " ");
}

int WidthFor(const QString& text, const QFontMetricsF& metrics) {
  double width = 0;
  for (const QString& line : text.split('\n')) {
    const bool isParagraph = line.size() > LongestBrokenLine;
    width = std::max(width, isParagraph ? ParagraphWidth : metrics.horizontalAdvance(line));
  }
  return static_cast<int>(std::ceil(width));
}

/// Makes the label wide enough for the lines that were broken by hand. By default the box wraps at
/// 500 pixels or half of a small screen, and so would break them again. If the screen is too narrow
/// for them, they are joined instead.
void KeepBrokenLines(QMessageBox& dialog, int room) {
  auto* label = dialog.findChild<QLabel*>("qt_msgbox_label");
  if (!label) return;
  // At a scale like 1.5 the last line's letters reach below the height that the label asks for.
  label->setContentsMargins(0, 0, 0, 2);
  label->setWordWrap(true);  // as Qt does later, so that the space around it can be measured
  const int around = dialog.layout()->totalMinimumSize().width() - label->minimumSizeHint().width();
  const int width = WidthFor(dialog.text(), QFontMetricsF(label->font()));
  label->setMinimumWidth(std::min(width, room - around));
  if (width > room - around) dialog.setText(JoinBrokenLines(dialog.text()));
}

}  // namespace

void ShowModal(const MessageBox& box, QWidget* window) {
  QMessageBox dialog(IconOf(box.Icon), QString::fromStdString(box.Title), TextOf(box.Text),
                     QMessageBox::Ok, window);
  dialog.setTextFormat(Qt::PlainText);
  // The frame is unknown before the window manager has drawn it. The style's own frame is about as
  // wide.
  const int frame = dialog.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  const int screenWidth = dialog.screen()->availableGeometry().width();
  KeepBrokenLines(dialog, WidestBox(screenWidth) - 2 * frame);
  dialog.exec();
}
