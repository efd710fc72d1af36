#include "drawing/ui/SuperficieStampante.h"

#include <QPainter>

namespace sagomi {

namespace {

constexpr double mmPollice = 25.4;
constexpr double spessoreCarta = 0.25; ///< mm, lines of DrawWidth 1

} // namespace

SuperficieStampante::SuperficieStampante(QPainter& pittore)
    : SuperficieQt(pittore, [&pittore] {
          const QPaintDevice& page = *pittore.device();
          Carta carta;
          carta.misura = QSizeF(page.width(), page.height());
          carta.unita = page.logicalDpiX() / mmPollice;
          carta.spessoreUnita = spessoreCarta * carta.unita;
          carta.inchiostro = Qt::black;
          return carta;
      }()) {}

} // namespace sagomi
