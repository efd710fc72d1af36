#include "screens/StampaSchermo.h"

#include <QLabel>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>

#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "drawing/ui/StampaTesto.h"
#include "frame/Messaggi.h"
#include "frame/ui/StanzaCopiata.h"
#include "screens/PlottaSezioneCorrente.h"
#include "screens/SchermoDettaglio.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

namespace {

constexpr qsizetype minimaColonna = 9; ///< least width in a printed table [characters]

bool MostraSezioni(const Schermo& schermo) {
    if (const auto* main = dynamic_cast<const SchermoSezione*>(&schermo))
        return main->RigaInMano();
    return dynamic_cast<const SchermoDettaglio*>(&schermo) != nullptr;
}

Disegno MaggioreImmagine(const Schermo& schermo) {
    Disegno largest;
    int area = 0;
    for (const ImmagineDisegno* picture : schermo.findChildren<ImmagineDisegno*>())
        if (const int own = picture->width() * picture->height();
            picture->isVisible() && picture->Mostrato().PlottaInOggetto && own > area) {
            largest = picture->Mostrato();
            area = own;
        }
    return largest;
}

/// Each column as wide as its longest cell, so that no row is shifted.
std::vector<std::string> InColonne(const QList<QStringList>& rows) {
    QList<qsizetype> widths;
    for (const QStringList& row : rows)
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (i == widths.size())
                widths << minimaColonna;
            widths[i] = std::max(widths[i], row[i].size());
        }
    std::vector<std::string> lines;
    for (QStringList row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i)
            row[i] = row[i].leftJustified(static_cast<int>(widths[i]));
        lines.push_back(row.join(u' ').toStdString());
    }
    return lines;
}

std::vector<std::string> Righe(const QAbstractItemModel& table) {
    QList<QStringList> rows;
    const auto line = [&](const auto& cell) {
        QStringList cells;
        for (int i = 0; i < table.columnCount(); ++i)
            cells << cell(i).toString().trimmed();
        rows << cells;
    };
    line([&](int i) { return table.headerData(i, Qt::Horizontal); });
    for (int row = 0; row < table.rowCount(); ++row)
        line([&](int i) { return table.index(row, i).data(); });
    return InColonne(rows);
}

/// Entries and results, as they are copied too.
std::vector<std::string> RigheDerivazione(const Schermo& schermo) {
    const QList<QStringList> rows = RigheStanza(schermo);
    return rows.size() > 1 ? InColonne(rows) : std::vector<std::string>{};
}

void AggiungeTesto(std::vector<std::string>& lines, const QString& text) {
    for (const QString& line : text.split(u'\n'))
        lines.push_back(line.toStdString());
}

/// What a screen without drawings says: its table, its text, its numbers, or at the least its words.
std::vector<std::string> TestoDi(const Schermo& schermo) {
    std::vector<std::string> lines;
    for (const auto* table : schermo.findChildren<QTableView*>())
        if (lines.empty() && table->isVisible() && table->model() != nullptr)
            lines = Righe(*table->model());
    for (const auto* text : schermo.findChildren<QTextEdit*>())
        if (lines.empty() && text->isVisible())
            AggiungeTesto(lines, text->toPlainText());
    if (lines.empty())
        lines = RigheDerivazione(schermo);
    if (lines.empty())
        for (const auto* label : schermo.findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                AggiungeTesto(lines, label->text());
    return lines;
}

void StampaSenzaDisegni(Schermo& schermo, bool anteprima) {
    const std::vector<std::string> lines = TestoDi(schermo);
    if (lines.empty())
        Avvisa("Questo schermo non ha disegni da stampare.");
    else if (anteprima)
        AnteprimaTesto(lines, schermo.windowTitle(), &schermo);
    else
        StampaTesto(lines, schermo.windowTitle(), &schermo);
}

} // namespace

void StampaSchermo(Schermo& schermo, bool anteprima) {
    const bool section = MostraSezioni(schermo);
    if (section && anteprima) {
        PlottaSezioneCorrente(schermo);
        return;
    }
    const Disegno drawing = section ? DisegnoSezioneCorrente() : MaggioreImmagine(schermo);
    if (!drawing.PlottaInOggetto) {
        StampaSenzaDisegni(schermo, anteprima);
        return;
    }
    const QString screen = schermo.objectName();
    if (anteprima)
        FrmPltSezione::Mostra(schermo, screen, [drawing] { return drawing; });
    else
        ScegliDispositivo(sceltaStampante, QString::fromStdString(drawing.nome), drawing, screen, &schermo);
}

} // namespace sagomi
