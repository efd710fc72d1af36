#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace sagomi {

/// Tells a screen reader at once that what a widget shows has changed: a verdict, say.
void Annuncia(QWidget& widget, const QString& testo);

/// Who hears what is told; nobody: the screen reader. The tests put their own in its place.
using AscoltoAnnunci = std::function<void(const QWidget& widget, const QString& testo)>;
void ImpostaAscolto(AscoltoAnnunci ascolto);

} // namespace sagomi
