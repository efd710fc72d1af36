#pragma once

#include <QString>
#include <QStringList>

class QMimeData;

namespace sagomi {

/// A table for the clipboard in all its forms: text with tabs, HTML, and a picture of the HTML, dark on
/// white, where it is not too long for one. The caller takes it over.
/// @param titolo  above the table; may be empty
/// @param righe   the heads first
QMimeData* TabellaCopiata(const QString& titolo, const QList<QStringList>& righe);

} // namespace sagomi
