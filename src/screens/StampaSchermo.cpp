#include "screens/StampaSchermo.h"

#include <QTableView>
#include <QTextEdit>

#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "drawing/ui/StampaTesto.h"
#include "frame/Messaggi.h"
#include "screens/PlottaSezioneCorrente.h"
#include "screens/SchermoDettaglio.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

namespace {

constexpr int larghezzaColonna = 9; ///< of a printed table [characters]

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

std::vector<std::string> Righe(const QAbstractItemModel& table) {
    std::vector<std::string> lines;
    const auto line = [&](const auto& cell) {
        QStringList cells;
        for (int i = 0; i < table.columnCount(); ++i)
            cells << cell(i).toString().trimmed().leftJustified(larghezzaColonna);
        lines.push_back(cells.join(u' ').toStdString());
    };
    line([&](int i) { return table.headerData(i, Qt::Horizontal); });
    for (int row = 0; row < table.rowCount(); ++row)
        line([&](int i) { return table.index(row, i).data(); });
    return lines;
}

/// What a screen without drawings says: its table, or its text.
std::vector<std::string> TestoDi(const Schermo& schermo) {
    std::vector<std::string> lines;
    for (const auto* table : schermo.findChildren<QTableView*>())
        if (lines.empty() && table->isVisible() && table->model() != nullptr)
            lines = Righe(*table->model());
    for (const auto* text : schermo.findChildren<QTextEdit*>())
        if (lines.empty() && text->isVisible())
            for (const QString& line : text->toPlainText().split(u'\n'))
                lines.push_back(line.toStdString());
    return lines;
}

void StampaSenzaDisegni(Schermo& schermo, bool anteprima) {
    const std::vector<std::string> lines = TestoDi(schermo);
    if (lines.empty())
        Avvisa("Questo schermo non ha disegni da stampare.");
    else if (anteprima)
        Avvisa("Questo schermo non ha disegni da mostrare; Ctrl+P ne stampa il testo.");
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
