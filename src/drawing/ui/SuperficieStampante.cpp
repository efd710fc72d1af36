#include "drawing/ui/SuperficieStampante.h"

#include <QPrinter>

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

LavoroDiStampa::LavoroDiStampa(QPrinter& stampante)
    : stampante_(stampante), iniziato_(pittore_.begin(&stampante)) {}

void LavoroDiStampa::Pagine(int copie, const std::function<bool(Superficie&, int)>& disegna) {
    for (int i = 0; i < copie; ++i) {
        bool more = true;
        for (int number = 0; more; ++number) {
            if (i > 0 || number > 0)
                stampante_.newPage();
            SuperficieStampante page(pittore_);
            more = disegna(page, number);
        }
    }
}

} // namespace sagomi
