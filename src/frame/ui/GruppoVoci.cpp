#include "frame/ui/GruppoVoci.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace sagomi {

namespace {

constexpr QMargins margini(9, 6, 9, 9);
constexpr int stacco = 12; ///< between one field and the next caption [px]

} // namespace

GruppoVoci::GruppoVoci(QWidget* parent) : QGroupBox(parent) {}

void GruppoVoci::InRiga(const std::vector<Voce>& voci) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margini);
    row->setSpacing(6);
    for (const Voce& v : voci) {
        if (row->count() > 0)
            row->addItem(new QSpacerItem(stacco, 0, QSizePolicy::Fixed));
        const Coppia pair = CreaCoppia(v);
        row->addWidget(pair.etichetta);
        row->addWidget(pair.campo);
    }
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
}

QGridLayout* GruppoVoci::InColonne(const std::vector<Voce>& voci, int righe, int spazioColonne) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(margini);
    grid->setHorizontalSpacing(spazioColonne);
    grid->setVerticalSpacing(4);
    const int rows = righe > 0 ? righe : static_cast<int>(voci.size());
    int i = 0;
    for (const Voce& v : voci) {
        const Coppia pair = CreaCoppia(v);
        PosaDicitura(*grid, pair.etichetta, i % rows, 2 * (i / rows), Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(pair.campo, i % rows, 2 * (i / rows) + 1);
        ++i;
    }
    return grid;
}

} // namespace sagomi
