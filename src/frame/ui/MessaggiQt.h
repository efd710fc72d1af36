#pragma once

#include <QString>

class QWidget;

namespace sagomi {

/// Plugs message boxes into the message port: each stands at the place where it happens and the caller goes
/// on after it. Boxes are children of the active window, their texts plain.
void CollegaMessaggiQt();

/// The text of the message box that a widget stands in; empty in any other window.
QString TestoDelMessaggio(const QWidget* w);

/// One kind of line break: CR, LF and CR LF become LF; trailing breaks go.
QString ConAcapi(QString testo);

} // namespace sagomi
