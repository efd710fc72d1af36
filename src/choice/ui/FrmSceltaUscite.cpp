#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "catalogue/ui/GrigliaCatalogo.h"
#include "choice/Opzioni.h"
#include "choice/ScritturaScelta.h"
#include "choice/ui/ConConfronto.h"
#include "choice/ui/FrmScelta.h"
#include "choice/ui/ModelloScelta.h"
#include "drawing/ui/StampaTesto.h"
#include "frame/FileAtomico.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/MotivoFile.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/NavigaSchermi.h"

// What leaves the choice: copies, paper, files, rows side by side.
namespace sagomi {

namespace {

constexpr const char* filtro = "CSV (*.csv);;JSON (*.json);;Testo (*.txt)";

FormatoUscita FormatoDi(const QString& estensione) {
    return estensione == u"json"  ? FormatoUscita::Json
           : estensione == u"txt" ? FormatoUscita::Testo
                                  : FormatoUscita::Csv;
}

/// Columns as the eye counts them: a continuation byte of UTF-8 takes none.
std::size_t Colonne(const std::string& testo) {
    return static_cast<std::size_t>(
        std::ranges::count_if(testo, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Largo(const std::string& testo, std::size_t colonne, bool destra) {
    const std::string blanks(colonne - std::min(colonne, Colonne(testo)), ' ');
    return destra ? blanks + testo : testo + blanks;
}

/// The units stand once above the table.
std::string SenzaUnita(std::string_view titolo) { return std::string(titolo.substr(0, titolo.find(' '))); }

/// What was asked for, above the table.
std::vector<std::string> Testata(const Richiesta& r) {
    const auto moments = [](const MomentiMembratura& m) {
        return Formato("0.0##", Nmm_a_kNm(m.M1)) + "; " + Formato("0.0##", Nmm_a_kNm(m.M2)) + "; " +
               Formato("0.0##", Nmm_a_kNm(m.MQ));
    };
    return {"Scelta del sagomo",
            r.TipoAcciaio + ", fy " + TestoPiano(Singolo(r.fy)) + " N/mm2, " + NomeNormativa(),
            "N " + Formato("0.0##", N_a_kN(r.NSd)) + " kN   My (M1; M2; MQ) " + moments(r.y) + " kNm   Mz " +
                moments(r.z) + " kNm",
            "L0y " + Formato("0.0##", mm_a_m(r.L0y)) + " m   L0z " + Formato("0.0##", mm_a_m(r.L0z)) + " m",
            "g in kg/m, h e b in mm, A in cm2, forze in kN, momenti in kNm",
            ""};
}

} // namespace

void FrmScelta::Copia() { tabella_->Copia(); }

// One row alone is held against the lightest of other families.
void FrmScelta::Confronta() {
    std::vector<std::uint32_t> places = Selezionate();
    if (places.size() < 2) {
        std::vector<std::uint32_t> others(modello_->Leggeri().begin(), modello_->Leggeri().end());
        std::ranges::sort(others, {}, [this](std::uint32_t p) { return std::pair(scelta_.Riga(p).g, p); });
        for (const std::uint32_t p : others)
            if (std::ranges::find(places, p) == places.end())
                places.push_back(p);
    }
    places.resize(std::min(places.size(), massimoConfronto));
    confrontati_ = std::move(places);
    MostraConfronto();
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmConfronto"), *this);
}

void FrmScelta::MostraConfronto() {
    std::vector<Confrontato> rows;
    std::vector<std::string> told;
    if (possibili_)
        for (const std::uint32_t p : confrontati_)
            rows.push_back(
                {scelta_.Sagomi()[p], Verifica(scelta_.Sagomi()[p], scelta_.RichiestaInForza(), told)});
    NavigaSchermi::Unico().Prende<ConConfronto>(QStringLiteral("FrmConfronto")).Mostra(std::move(rows));
}

// It may stand open while the entries change.
void FrmScelta::AggiornaConfronto() {
    if (const Schermo* open = NavigaSchermi::Unico().Trova(QStringLiteral("FrmConfronto"));
        open != nullptr && open->isVisible())
        MostraConfronto();
}

// The numbers as the table shows them, in columns as wide as they need.
void FrmScelta::Stampa() {
    constexpr double corpo = 5.2; // all columns on the width of a page
    const auto columns = ColonneScelta().size();
    std::vector<std::vector<std::string>> rows(1);
    for (const ColonnaScelta& column : ColonneScelta())
        rows.front().push_back(SenzaUnita(column.titolo));
    for (const std::uint32_t place : modello_->Posti())
        if (scelta_.Valida(place)) {
            auto& row = rows.emplace_back();
            for (int c = 0; c < static_cast<int>(columns); ++c)
                row.push_back(TestoScelta(scelta_.Riga(place), scelta_.Sagomi()[place], c));
        }
    std::vector<std::size_t> widths(columns);
    for (const auto& row : rows)
        for (std::size_t c = 0; c < columns; ++c)
            widths[c] = std::max(widths[c], Colonne(row[c]));
    std::vector<std::string> lines = Testata(scelta_.RichiestaInForza());
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t c = 0; c < columns; ++c) {
            const bool left = c <= colonnaFamiglia || c + 1 == columns;
            line += (c == 0 ? "" : " ") + Largo(row[c], widths[c], !left);
        }
        line.erase(line.find_last_not_of(' ') + 1); // blanks would go on below
        lines.push_back(std::move(line));
    }
    StampaTesto(lines, windowTitle(), this, nullptr, corpo);
}

// The same writing as that of a command line, with a point in numbers whatever the locale.
void FrmScelta::Esporta() {
    QString file = SceglieFile(this, "S", QString::fromLatin1(filtro), 1, QStringLiteral("scelta.csv"));
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += QStringLiteral(".csv");
    sagomi::Comando comando;
    comando.formato = FormatoDi(QFileInfo(file).suffix().toLower());
    comando.richiesta = scelta_.RichiestaInForza();
    comando.filtri = FiltriInForza();
    std::vector<RigaScelta> rows;
    for (const std::uint32_t place : modello_->Posti())
        if (scelta_.Valida(place))
            rows.push_back(scelta_.Riga(place));
    std::ostringstream text;
    ScriveScelta(text, comando, scelta_.Sagomi(), rows, scelta_.Messaggi());
    if (const std::filesystem::path path(file.toStdString()); !ScriveAtomico(path, text.str()))
        Avvisa(AvvisoNonScritto(path));
}

} // namespace sagomi
