#include "screens/PannelloDati.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "screens/VociSezione.h"

namespace sagomi {

namespace {

constexpr int colonnaResto = 4; ///< takes the spare width

/// Two entries a row, from a row on.
/// @return the row below
int PosaVoci(QGridLayout& grid, const std::vector<Voce>& voci, int row) {
    int i = 0;
    for (const Voce& v : voci) {
        const Coppia pair = CreaCoppia(v);
        grid.addWidget(pair.etichetta, row + i / 2, 2 * (i % 2));
        grid.addWidget(pair.campo, row + i / 2, 2 * (i % 2) + 1);
        ++i;
    }
    return row + (i + 1) / 2;
}

const std::vector<Voce>& Tensioni() {
    static const std::vector<Voce> entries = {
        {{"Lbl_fy", "fy (N/mm2)"}, "Txt_fy", 7, "Tensione di snervamento dell'acciaio", "fy (N/mm2)"},
        {{"Lbl_fu", "fu (N/mm2)"}, "Txt_fu", 7, "Tensione di rottura dell'acciaio", "fu (N/mm2)"}};
    return entries;
}

const std::vector<Voce>& Forza() {
    static const std::vector<Voce> entries = {{{"LblNsd", "N     [kN]", "Sd"},
                                               "TxtNsd",
                                               7,
                                               "Sforzo normale di progetto, positivo se di compressione",
                                               "N Sd [kN]"}};
    return entries;
}

} // namespace

PannelloDati::PannelloDati(QWidget* parent) : QGroupBox(parent), griglia_(new QGridLayout(this)) {
    setTitle(tr("Dati"));
    griglia_->setContentsMargins(9, 6, 9, 9);
    griglia_->setHorizontalSpacing(6);
    griglia_->setVerticalSpacing(4);
    griglia_->setColumnStretch(colonnaResto, 1);
}

void PannelloDati::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    const VociSchermo& entries = VociDi(nome.toStdString());
    PosaAcciaio();
    int row = PosaVoci(*griglia_, Tensioni(), 1);
    QLabel* lengths = CreaDicitura({"Lbl_L0", "Lunghezze di libera inflessione [m]"});
    griglia_->addWidget(lengths, row++, 0, 1, colonnaResto + 1);
    row = PosaVoci(*griglia_, entries.lunghezze, row);
    if (entries.forza)
        PosaVoci(*griglia_, Forza(), row);
    if (entries.separatori)
        PosaNascosto();
    griglia_->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, colonnaResto);
}

void PannelloDati::PosaAcciaio() {
    auto* steel = new QComboBox;
    steel->setObjectName(QStringLiteral("ComboTipoAcciaio"));
    steel->setToolTip(tr("Qualità dell'acciaio"));
    steel->setAccessibleName(tr("Acciaio"));
    QLabel* caption = CreaDicitura({"LblAcciaio", "Acciaio"}, Qt::AlignRight | Qt::AlignVCenter);
    caption->setBuddy(steel);
    griglia_->addWidget(caption, 0, 0);
    griglia_->addWidget(steel, 0, 1, 1, 3);
}

void PannelloDati::PosaNascosto() {
    auto* hidden = new QLineEdit(QStringLiteral("Non Cancellare"), this);
    hidden->setObjectName(QStringLiteral("txtNascosto"));
    hidden->setFocusPolicy(Qt::NoFocus);
    hidden->hide();
}

} // namespace sagomi
