#include "choice/ui/FrmConfronto.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include <utility>

#include "choice/TabellaScelta.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/TabellaCopiata.h"

namespace sagomi {

namespace {

constexpr int spazio = 6; ///< [px]

QTableWidgetItem* Voce(const std::string& testo, Qt::Alignment allineamento) {
    auto* item = new QTableWidgetItem(QString::fromStdString(testo));
    item->setTextAlignment(allineamento | Qt::AlignVCenter);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

} // namespace

FrmConfronto::FrmConfronto() : Schermo(QStringLiteral("FrmConfronto")) {
    setWindowTitle(QStringLiteral("Confronto dei sagomi"));
    Compone();
    PreparaContenuto();
    Collega(copia_, &QPushButton::clicked, this, [this] { Copia(); });
    FrmConfronto::Mostra({}, {});
    constexpr QSize misura(1150, 640);
    DimensionaIniziale(misura);
}

void FrmConfronto::Compone() {
    auto* room = new QWidget(this);
    room->setObjectName(QStringLiteral("centrale"));
    auto* column = new QVBoxLayout(room);
    column->setContentsMargins(9, 6, 9, 6);
    column->setSpacing(spazio);
    disegno_ = new ImmagineDisegno(room);
    disegno_->setObjectName(QStringLiteral("Disegno"));
    disegno_->setAccessibleName(tr("Sagomi nella stessa scala"));
    column->addWidget(disegno_, 2);
    tabella_ = new QTableWidget(room);
    tabella_->setObjectName(QStringLiteral("Tabella"));
    tabella_->setAccessibleName(tr("Valori e differenze"));
    tabella_->setAlternatingRowColors(true);
    tabella_->setWordWrap(false);
    tabella_->setTabKeyNavigation(false);
    tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella_->verticalHeader()->hide();
    tabella_->verticalHeader()->setMinimumSectionSize(1);
    tabella_->horizontalHeader()->setHighlightSections(false);
    column->addWidget(tabella_, 3);
    auto* row = new QHBoxLayout;
    note_ = new QLabel(room);
    note_->setObjectName(QStringLiteral("LblNote"));
    note_->setAccessibleName(tr("Note del confronto"));
    note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // its text moves nothing
    row->addWidget(note_, 1);
    copia_ = new QPushButton(tr("C&opia"), room);
    copia_->setObjectName(QStringLiteral("CmdCopia"));
    copia_->setToolTip(tr("Copia valori e differenze come tabella"));
    row->addWidget(copia_);
    column->addLayout(row);
    setCentralWidget(room);
}

void FrmConfronto::Mostra(std::vector<Confrontato> righe, const std::vector<std::string>& note) {
    righe_ = std::move(righe);
    QStringList told;
    for (const std::string& n : note)
        told << QString::fromStdString(n).simplified();
    note_->setText(told.join(QStringLiteral(" · ")));
    note_->setToolTip(told.join(u'\n'));
    disegno_->Mostra(DisegnoConfronto(righe_));
    copia_->setEnabled(!righe_.empty());
    RiempieTabella();
}

// Behind each value of another than the first its difference.
void FrmConfronto::RiempieTabella() {
    const std::vector<LineaConfronto> lines =
        righe_.empty() ? std::vector<LineaConfronto>() : LineeConfronto(righe_);
    QStringList heads{QString()};
    for (std::size_t i = 0; i < righe_.size(); ++i) {
        heads << QString::fromStdString(righe_[i].sagomo.Designazione());
        if (i > 0)
            heads << tr("differenza");
    }
    tabella_->setColumnCount(static_cast<int>(heads.size()));
    tabella_->setRowCount(static_cast<int>(lines.size()));
    tabella_->setHorizontalHeaderLabels(heads);
    for (int row = 0; row < static_cast<int>(lines.size()); ++row) {
        const LineaConfronto& line = lines[static_cast<std::size_t>(row)];
        QTableWidgetItem* name = Voce(line.voce, Qt::AlignLeft);
        name->setToolTip(QString::fromStdString(line.aiuto));
        tabella_->setItem(row, 0, name);
        int column = 1;
        for (std::size_t i = 0; i < line.valori.size(); ++i) {
            tabella_->setItem(row, column++, Voce(line.valori[i], Qt::AlignRight));
            if (i > 0)
                tabella_->setItem(row, column++, Voce(line.differenze[i], Qt::AlignRight));
        }
    }
    tabella_->horizontalHeader()->setFont(tabella_->font()); // it is made anew with its columns
    tabella_->verticalHeader()->setDefaultSectionSize(tabella_->fontMetrics().height() + 5);
    tabella_->resizeColumnsToContents();
}

void FrmConfronto::Copia() const {
    QList<QStringList> lines;
    QStringList fields;
    for (int column = 0; column < tabella_->columnCount(); ++column)
        fields << tabella_->horizontalHeaderItem(column)->text();
    lines << fields;
    for (int row = 0; row < tabella_->rowCount(); ++row) {
        fields.clear();
        for (int column = 0; column < tabella_->columnCount(); ++column)
            fields << tabella_->item(row, column)->text();
        lines << fields;
    }
    QGuiApplication::clipboard()->setMimeData(TabellaCopiata(windowTitle(), lines));
}

} // namespace sagomi
