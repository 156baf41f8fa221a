#include "desktop/message_box.h"

#include <QLabel>
#include <QMessageBox>
#include <algorithm>

namespace {

// Longer lines are paragraphs, which the box wraps by itself.
constexpr int LongestBrokenLine = 80;

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

/// The box would wrap lines over 500 pixels, and so break lines again that were broken by hand:
/// with a large font they are longer than that.
void KeepBrokenLines(QMessageBox& box) {
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  if (!label) return;
  int width = 0;
  for (const QString& line : box.text().split('\n')) {
    if (line.size() <= LongestBrokenLine) {
      width = std::max(width, label->fontMetrics().horizontalAdvance(line));
    }
  }
  label->setMinimumWidth(width);
}

}  // namespace

void ShowModal(const MessageBox& box, QWidget* window) {
  const QString text = QString::fromStdString(box.Text).replace("\r\n", "\n");
  QMessageBox dialog(IconOf(box.Icon), QString::fromStdString(box.Title), text, QMessageBox::Ok,
                     window);
  dialog.setTextFormat(Qt::PlainText);
  KeepBrokenLines(dialog);
  dialog.exec();
}
