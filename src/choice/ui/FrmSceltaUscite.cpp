#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "catalogue/ui/GrigliaCatalogo.h"
#include "choice/Opzioni.h"
#include "choice/ScritturaScelta.h"
#include "choice/StampaScelta.h"
#include "choice/ui/ConConfronto.h"
#include "choice/ui/FrmScelta.h"
#include "choice/ui/ModelloScelta.h"
#include "drawing/ui/StampaTesto.h"
#include "frame/FileAtomico.h"
#include "frame/Messaggi.h"
#include "frame/MotivoFile.h"
#include "frame/Numeri.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/NavigaSchermi.h"

// What leaves the choice: copies, paper, files, rows side by side.
namespace sagomi {

namespace {

constexpr const char* filtro = "CSV (*.csv)|*.csv|JSON (*.json)|*.json|Testo (*.txt)|*.txt";

FormatoUscita FormatoDi(const QString& estensione) {
    return estensione == u"json"  ? FormatoUscita::Json
           : estensione == u"txt" ? FormatoUscita::Testo
                                  : FormatoUscita::Csv;
}

} // namespace

void FrmScelta::Copia() { tabella_->Copia(); }

// One row alone is held against the lightest of other families.
void FrmScelta::Confronta() {
    std::vector<std::uint32_t> places = Selezionate();
    scelti_ = places.size();
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
    if (possibili_) {
        if (scelti_ > massimoConfronto && !confrontati_.empty())
            told.push_back("i primi quattro di " + Formato("#,##0", double(scelti_)));
        for (const std::uint32_t p : confrontati_)
            rows.push_back(
                {scelta_.Sagomi()[p], Verifica(scelta_.Sagomi()[p], scelta_.RichiestaInForza(), told)});
    }
    NavigaSchermi::Unico().Prende<ConConfronto>(QStringLiteral("FrmConfronto")).Mostra(std::move(rows), told);
}

// It may stand open while the entries change.
void FrmScelta::AggiornaConfronto() {
    if (const Schermo* open = NavigaSchermi::Unico().Trova(QStringLiteral("FrmConfronto"));
        open != nullptr && open->isVisible())
        MostraConfronto();
}

void FrmScelta::Stampa() {
    constexpr double corpo = 5.2; // all columns on the width of a page
    std::vector<std::uint32_t> places;
    std::ranges::copy_if(modello_->Posti(), std::back_inserter(places),
                         [this](std::uint32_t p) { return scelta_.Valida(p); });
    std::vector<std::string> told = scelta_.Messaggi();
    told.insert(told.end(), mancanti_.begin(), mancanti_.end());
    const std::vector<std::string> lines = StampaScelta(scelta_.RichiestaInForza(), FiltriInForza(), places,
                                                        scelta_.Righe(), scelta_.Sagomi(), told);
    StampaTesto(lines, windowTitle(), this, nullptr, corpo);
}

// The same writing as that of a command line, with a point in numbers whatever the locale.
void FrmScelta::Esporta() {
    const QString file = SceglieFile(this, "S", QString::fromLatin1(filtro), 1, QStringLiteral("scelta.csv"));
    if (file.isEmpty())
        return;
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
