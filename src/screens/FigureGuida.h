#pragma once

#include <QImage>
#include <QString>

namespace sagomi {

/// A picture of the help, drawn as the screens draw: "giunto", "irrigidimenti", "foratura", "trave",
/// "mensola", "lamiera", "connettori". An unknown name gives an empty picture.
QImage FiguraGuida(const QString& nome);

} // namespace sagomi
