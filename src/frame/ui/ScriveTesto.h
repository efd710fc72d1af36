#pragma once

#include <QLineEdit>
#include <QString>

#include <string>

namespace sagomi {

/// Puts a text into a box. The text that is there already stays, with what is selected of it, and the box is
/// not painted anew.
inline void ScriveTesto(QLineEdit* casella, const std::string& testo) {
    if (const QString text = QString::fromStdString(testo); casella->text() != text)
        casella->setText(text);
}

} // namespace sagomi
