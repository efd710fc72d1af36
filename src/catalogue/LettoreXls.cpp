#include "catalogue/LettoreXls.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <freexl.h>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "catalogue/CelleCalcolate.h"
#include "catalogue/ContenitoreOle.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/LetturaBiff.h"
#include "catalogue/VerificaXls.h"

namespace sagomi {

namespace {

[[noreturn]] void Fallisce(const std::filesystem::path& file, const std::string& causa, int numero = 0) {
    throw ErroreCatalogo("Errore nella lettura di \"" + file.string() + "\": " + causa + ".", numero);
}

std::string CausaInParole(int codice) {
    switch (codice) {
    case FREEXL_FILE_NOT_FOUND:
        return "il file non si apre";
    case FREEXL_INSUFFICIENT_MEMORY:
        return "memoria insufficiente";
    case FREEXL_INVALID_CFBF_HEADER:
    case FREEXL_CFBF_INVALID_SIGNATURE:
    case FREEXL_CFBF_INVALID_SECTOR_SIZE:
        return "il file non è una cartella di lavoro .xls";
    case FREEXL_BIFF_WORKBOOK_NOT_FOUND:
        return "il file non contiene una cartella di lavoro";
    case FREEXL_BIFF_ILLEGAL_SST_INDEX:
    case FREEXL_BIFF_INVALID_SST:
        return "la tabella dei testi è danneggiata";
    case FREEXL_INVALID_CHARACTER:
    case FREEXL_UNSUPPORTED_CHARSET:
        return "un testo non è leggibile";
    default:
        return "la cartella di lavoro è danneggiata (codice " + std::to_string(codice) + ")";
    }
}

/// A workbook open in freexl. The handle is to be closed after a failed opening too.
class CartellaAperta {
public:
    explicit CartellaAperta(const std::filesystem::path& file) : file_(file) {
        const int esito = freexl_open(file.c_str(), &maniglia_);
        if (esito != FREEXL_OK) {
            freexl_close(maniglia_);
            Fallisce(file_, CausaInParole(esito), esito);
        }
    }
    ~CartellaAperta() { freexl_close(maniglia_); }
    CartellaAperta(const CartellaAperta&) = delete;
    CartellaAperta& operator=(const CartellaAperta&) = delete;

    [[nodiscard]] CartellaDati LeggiFogli() const {
        CartellaDati cartella;
        const unsigned fogli = Info(FREEXL_BIFF_SHEET_COUNT);
        for (unsigned i = 0; i < fogli; ++i)
            cartella.fogli.push_back(Leggi(static_cast<unsigned short>(i)));
        if (cartella.fogli.empty())
            Fallisce(file_, "la cartella di lavoro non ha fogli");
        return cartella;
    }

private:
    [[nodiscard]] unsigned Info(unsigned short cosa) const {
        unsigned valore = 0;
        Riuscito(freexl_get_info(maniglia_, cosa, &valore));
        return valore;
    }

    [[nodiscard]] Foglio Leggi(unsigned short indice) const {
        Foglio foglio;
        const char* nome = nullptr;
        Riuscito(freexl_get_worksheet_name(maniglia_, indice, &nome));
        foglio.nome = nome == nullptr ? "" : nome;
        Riuscito(freexl_select_active_worksheet(maniglia_, indice));
        unsigned righe = 0;
        unsigned short colonne = 0;
        Riuscito(freexl_worksheet_dimensions(maniglia_, &righe, &colonne));
        for (unsigned r = 0; r < righe; ++r)
            for (unsigned short c = 0; c < colonne; ++c)
                LeggiCella(foglio, r, c);
        return foglio;
    }

    void Riuscito(int esito) const {
        if (esito != FREEXL_OK)
            Fallisce(file_, CausaInParole(esito), esito);
    }

    void LeggiCella(Foglio& foglio, unsigned r, unsigned short c) const;

    std::filesystem::path file_;
    const void* maniglia_ = nullptr;
};

/// Reads a number from the front of `testo` and takes it off, with the character behind it.
int PrendiNumero(std::string_view& testo) {
    int n = 0;
    const auto letto = std::from_chars(testo.data(), testo.data() + testo.size(), n);
    const auto presi = static_cast<std::size_t>(letto.ptr - testo.data());
    testo.remove_prefix(std::min(presi + 1, testo.size()));
    return n;
}

/// Days from 30 December 1899, of which spreadsheet programs count their dates. They take 1900 for a leap
/// year: before its March the count is one less.
double Giorni(std::string_view& testo) {
    using namespace std::chrono;
    const int anno = PrendiNumero(testo);
    const int mese = PrendiNumero(testo);
    const int giorno = PrendiNumero(testo);
    const sys_days data =
        year(anno) / month(static_cast<unsigned>(mese)) / day(static_cast<unsigned>(giorno));
    const auto giorni = (data - sys_days(1899y / December / 30)).count();
    return static_cast<double>(anno == 1900 && mese < 3 ? giorni - 1 : giorni);
}

double FrazioneDiGiorno(std::string_view& testo) {
    const int ore = PrendiNumero(testo);
    const int minuti = PrendiNumero(testo);
    const int secondi = PrendiNumero(testo);
    return (ore * 3600.0 + minuti * 60.0 + secondi) / 86400.0;
}

/// freexl hands dates out as texts: 'YYYY-MM-DD', 'YYYY-MM-DD HH:MM:SS', 'HH:MM:SS'.
Cella CellaData(std::string_view testo, unsigned char tipo) {
    switch (tipo) {
    case FREEXL_CELL_DATE:
        return {Giorni(testo), GenereNumero::Data};
    case FREEXL_CELL_DATETIME: {
        const double giorni = Giorni(testo);
        return {giorni + FrazioneDiGiorno(testo), GenereNumero::DataOra};
    }
    default:
        return {FrazioneDiGiorno(testo), GenereNumero::Ora};
    }
}

Cella CellaDa(const FreeXL_CellValue& v) {
    switch (v.type) {
    case FREEXL_CELL_INT:
        return {static_cast<double>(v.value.int_value), GenereNumero::Semplice};
    case FREEXL_CELL_DOUBLE:
        return {v.value.double_value, GenereNumero::Semplice};
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
        if (v.value.text_value == nullptr || *v.value.text_value == '\0')
            return {};
        return {std::string(v.value.text_value), GenereNumero::Semplice};
    case FREEXL_CELL_DATE:
    case FREEXL_CELL_DATETIME:
    case FREEXL_CELL_TIME:
        return CellaData(v.value.text_value, v.type);
    default:
        return {};
    }
}

/// Cells that hold something make the sheet grow; empty ones do not.
void CartellaAperta::LeggiCella(Foglio& foglio, unsigned r, unsigned short c) const {
    FreeXL_CellValue v{};
    const int esito = freexl_get_cell_value(maniglia_, r, c, &v);
    if (esito == FREEXL_ILLEGAL_CELL_ROW_COL)
        return;
    Riuscito(esito);
    Cella cella = CellaDa(v);
    if (Vuoto(cella.valore))
        return;
    foglio.Scrivi(r, c, {});
    foglio.righe[r][c] = std::move(cella);
}

/// Puts in what the library does not give.
void Completa(CartellaDati& cartella, std::vector<CellaCalcolata> calcolate) {
    for (CellaCalcolata& cella : calcolate) {
        const auto foglio = std::ranges::find(cartella.fogli, cella.foglio, &Foglio::nome);
        const bool daScrivere = foglio != cartella.fogli.end() &&
                                (!Vuoto(cella.valore) || !Vuoto(foglio->Leggi(cella.riga, cella.colonna)));
        if (daScrivere)
            foglio->Scrivi(cella.riga, cella.colonna, std::move(cella.valore));
    }
}

} // namespace

CartellaDati LeggiXls(const std::filesystem::path& file) {
    std::error_code errore;
    if (!std::filesystem::is_regular_file(file, errore))
        Fallisce(file, "il file non esiste");
    std::vector<CellaCalcolata> calcolate;
    try {
        const std::vector<std::uint8_t> flusso = LeggiFlussoOle(file, {"Workbook", "Book"});
        const std::vector<RecordLetto> record = LeggiRecord(flusso);
        VerificaXls(record);
        calcolate = CelleCalcolate(record);
    } catch (const std::exception& e) {
        Fallisce(file, e.what());
    }
    CartellaDati cartella = CartellaAperta(file).LeggiFogli();
    Completa(cartella, std::move(calcolate));
    return cartella;
}

} // namespace sagomi
