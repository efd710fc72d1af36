#include "screens/PannelloFamiglie.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

#include "catalogue/Famiglie.h"
#include "catalogue/OrdineQuery.h"
#include "screens/PannelloUtente.h"

namespace sagomi {

namespace {

constexpr int colonneFamiglie = 8;
constexpr const char* didascalia = "Aggiorna Tabella";
constexpr const char* suggerimento = "Mostra nella tabella i sagomi delle famiglie scelte (F5)";
constexpr QMargins margini(9, 6, 9, 9);

QString Testo(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A box or a button of an array of controls.
template <typename T> T* CreaScelta(const char* array, int i, std::string_view caption, bool checked) {
    auto* choice = new T(Testo(caption));
    choice->setObjectName(QString::fromLatin1(array) + u'_' + QString::number(i));
    choice->setChecked(checked);
    return choice;
}

/// With the mark of ticks that are not yet in the table.
QString Didascalia(bool daAggiornare) {
    const QString text = QString::fromLatin1(didascalia);
    return daAggiornare ? text + QStringLiteral(" •") : text;
}

/// The user's own sheet in place of the families.
QCheckBox* CreaTipoUtente(const FamigliaSchermo& famiglia) {
    auto* box = new QCheckBox(QStringLiteral("Sagomi Utente"));
    box->setObjectName(QStringLiteral("ChkTipoUtente"));
    box->setToolTip(QStringLiteral("Sagomi dal file SagomiUtente.xls - Foglio ") +
                    Testo(famiglia.foglioUtente) +
                    QStringLiteral(" - Cliccare nuovamente per tornare ai sagomi standard."));
    return box;
}

QGroupBox* CreaStanza(const char* name, const QString& title) {
    auto* room = new QGroupBox(title);
    room->setObjectName(QString::fromLatin1(name));
    return room;
}

} // namespace

PannelloFamiglie::PannelloFamiglie(QWidget* parent) : QWidget(parent) {}

void PannelloFamiglie::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    const FamigliaSchermo& family = FamigliaDi(nome.toStdString());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(CreaFamiglie(family), 1);
    row->addWidget(CreaOrdini(family));
    if (!family.foglioUtente.empty())
        row->addWidget(new ComandiUtente(this));
    aggiorna_ = new QPushButton(Didascalia(true));
    aggiorna_->setObjectName(QStringLiteral("AggiornaTabella"));
    aggiorna_->setMinimumWidth(aggiorna_->sizeHint().width()); // the mark moves nothing
    aggiorna_->setText(Didascalia(false));
    aggiorna_->setShortcut(Qt::Key_F5);
    aggiorna_->setToolTip(tr(suggerimento));
    row->addWidget(aggiorna_, 0, Qt::AlignBottom);
}

void PannelloFamiglie::MostraDifferenze(const std::string& query) {
    QStringList missing;
    QStringList left;
    for (const QCheckBox* box : findChildren<QCheckBox*>()) {
        if (!box->isEnabled() || !box->objectName().startsWith(u"ChkTipo_"))
            continue; // the user's own sheet is in force
        const bool listed = NominaFoglio(query, box->text().toStdString());
        if (box->isChecked() != listed)
            (listed ? left : missing) << box->text();
    }
    QString tip = tr(suggerimento);
    if (!missing.isEmpty())
        tip += tr("\nDa aggiungere: ") + missing.join(QStringLiteral(", "));
    if (!left.isEmpty())
        tip += tr("\nDa togliere: ") + left.join(QStringLiteral(", "));
    aggiorna_->setText(Didascalia(!missing.isEmpty() || !left.isEmpty()));
    aggiorna_->setShortcut(Qt::Key_F5); // a new text takes it away
    aggiorna_->setToolTip(tip);
}

QWidget* PannelloFamiglie::CreaFamiglie(const FamigliaSchermo& famiglia) {
    auto* room = CreaStanza("fraFamiglie", tr("Famiglie"));
    auto* grid = new QGridLayout(room);
    grid->setContentsMargins(margini);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    int i = 0;
    for (const std::string_view sheet : famiglia.fogli) {
        auto* box = CreaScelta<QCheckBox>("ChkTipo", i, sheet, sheet == famiglia.primoFoglio);
        grid->addWidget(box, i / colonneFamiglie, i % colonneFamiglie);
        ++i;
    }
    if (!famiglia.foglioUtente.empty())
        grid->addWidget(CreaTipoUtente(famiglia), 0, i++);
    for (int c = 0; c < std::min(i, colonneFamiglie); ++c)
        grid->setColumnStretch(c, 1);
    return room;
}

QWidget* PannelloFamiglie::CreaOrdini(const FamigliaSchermo& famiglia) {
    auto* room = CreaStanza("fraOrdina", tr("Ordina per"));
    auto* row = new QHBoxLayout(room);
    row->setContentsMargins(margini);
    row->setSpacing(12);
    int i = 0;
    for (const std::string_view key : famiglia.ordini) {
        row->addWidget(CreaScelta<QRadioButton>("OptionOrdina", i, key, i == famiglia.primoOrdine));
        ++i;
    }
    return room;
}

} // namespace sagomi
