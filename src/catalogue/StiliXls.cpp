#include "catalogue/StiliXls.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace sagomi {

namespace {

constexpr unsigned fontNormale = 0;
constexpr unsigned fontGrassetto = 5; ///< the format has no font 4
constexpr std::size_t decimaliMassimi = 4;

void ScriveFont(FlussoBiff& flusso, bool grassetto) {
    constexpr std::u16string_view nome = u"Arial";
    Ottetti f;
    f.U16(200).U16(grassetto ? 1 : 0).U16(0x7FFF).U16(grassetto ? 700 : 400).U16(0); // 10 points, colour of
                                                                                     // the system
    f.U8(0).U8(2).U8(0).U8(0).U8(nome.size()).U8(0).Testo(nome, 0, nome.size(), true);
    flusso.Record(Biff::Font, f);
}

void ScriveFormato(FlussoBiff& flusso, unsigned numero, std::u16string_view figura) {
    Ottetti f;
    f.U16(numero).U16(static_cast<unsigned>(figura.size())).U8(0).Testo(figura, 0, figura.size(), true);
    flusso.Record(Biff::Format, f);
}

/// What a style sets. Colours are numbers of the standard palette.
struct Xf {
    unsigned font = fontNormale;
    unsigned formato = 0;
    unsigned genere = 0x0001;     ///< locked cell, child of style 0; 0xFFF5 for a style
    unsigned allineamento = 0x20; ///< at the bottom
    unsigned propri = 0;          ///< what differs from the parent
    std::uint32_t bordi = 0;
    std::uint32_t bordiColori = 0;
    unsigned fondo = 0x20C0; ///< no pattern, in the colours of the system
};

void ScriveXf(FlussoBiff& flusso, const Xf& xf) {
    Ottetti o;
    o.U16(xf.font).U16(xf.formato).U16(xf.genere).U8(xf.allineamento).U8(0).U8(0).U8(xf.propri);
    o.U32(xf.bordi).U32(xf.bordiColori).U16(xf.fondo);
    flusso.Record(Biff::Xf, o);
}

void ScriveXfDiStile(FlussoBiff& flusso) {
    ScriveXf(flusso, {.genere = 0xFFF5});
    for (int i = 1; i < 15; ++i)
        ScriveXf(flusso, {.genere = 0xFFF5, .propri = 0xF4});
}

Xf XfIntestazione() {
    constexpr unsigned grigio = 22;
    constexpr unsigned automatico = 64;
    return {.font = fontGrassetto,
            .allineamento = 0x12, // centred both ways
            .propri = 0x78,       // font, alignment, border, background
            .bordi = 1U << 12U,   // thin line below
            .bordiColori = (automatico << 7U) | (1U << 26U),
            .fondo = grigio | ((automatico + 1) << 7U)};
}

/// Number formats of the cell styles from Decimali0 on: built in below 164, the others written here.
constexpr std::array<unsigned, 8> formatiNumerici = {1, 164, 2, 165, 166, 14, 22, 21};

/// How many characters a number has in its shortest form: up to the point, the sign included, and behind it.
struct Cifre {
    std::size_t intere = 0, decimali = 0;

    [[nodiscard]] std::size_t Tutte() const { return intere + (decimali > 0 ? 1 + decimali : 0); }
};

std::size_t CifreIntere(std::uint64_t n) {
    std::size_t cifre = 1;
    for (; n >= 10; n /= 10)
        ++cifre;
    return cifre;
}

/// Counted in the text, which any number has.
Cifre CifreDelTesto(double v) {
    std::array<char, 400> buffer; // filled below
    const auto fine =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), v, std::chars_format::fixed);
    const std::string_view testo(buffer.data(), static_cast<std::size_t>(fine.ptr - buffer.data()));
    const std::size_t punto = testo.find('.');
    return punto == std::string_view::npos ? Cifre{testo.size(), 0} : Cifre{punto, testo.size() - punto - 1};
}

/// The numbers of tables have few decimals. One that is the nearest to a decimal number of at most 15 figures
/// has that one as its shortest form, so the text need not be made.
Cifre CifreDi(double v) {
    constexpr std::array<double, 5> potenze = {1, 10, 100, 1000, 10000};
    const double a = std::abs(v);
    if (a < 1e11)
        for (std::size_t k = 0; k < potenze.size(); ++k) {
            const double oltre = a * potenze[k] + 0.5; // cut off, it is rounded
            if (static_cast<double>(static_cast<std::uint64_t>(oltre)) / potenze[k] == a)
                return {CifreIntere(static_cast<std::uint64_t>(a)) + (std::signbit(v) ? 1U : 0U), k};
        }
    return CifreDelTesto(v);
}

/// The columns whose numbers lie within a few powers of ten, told by the unit in the heading.
bool UnitaUniforme(std::string_view intestazione) {
    return std::ranges::any_of(std::array<std::string_view, 5>{"(mm)", "(cm)", "(cm2)", "(Kg/m)", "(kg/m)"},
                               [&](std::string_view unita) { return intestazione.ends_with(unita); });
}

std::size_t CaratteriUtf16(const std::string& testo) {
    const bool ascii = std::ranges::all_of(testo, [](unsigned char c) { return c < 0x80; });
    return ascii ? testo.size() : Utf16DaUtf8(testo).size();
}

/// What the cells of a column ask for.
struct MisureColonna {
    std::size_t altro = 0;    ///< characters of texts and dates
    std::size_t numeri = 0;   ///< characters of plain numbers as they come
    std::size_t intere = 0;   ///< the same, up to the point
    std::size_t decimali = 0; ///< of all numbers below the first row

    void Aggiunge(const Cella& cella, bool inTesta, bool intestata) {
        if (const auto* testo = std::get_if<std::string>(&cella.valore)) {
            const std::size_t grassetto = inTesta && intestata ? 1 : 0; // which is wider
            altro = std::max(altro, CaratteriUtf16(*testo) + grassetto);
        } else if (const auto* v = std::get_if<double>(&cella.valore); v != nullptr && std::isfinite(*v)) {
            Numero(CifreDi(*v), cella.genere == GenereNumero::Semplice, inTesta);
        }
    }

private:
    void Numero(const Cifre& cifre, bool semplice, bool inTesta) {
        constexpr std::size_t dataEOra = 16;
        if (!inTesta)
            decimali = std::max(decimali, cifre.decimali);
        altro = semplice ? altro : std::max(altro, dataEOra);
        numeri = semplice ? std::max(numeri, cifre.Tutte()) : numeri;
        intere = semplice ? std::max(intere, cifre.intere) : intere;
    }
};

/// One way through the sheet as it lies in memory.
std::vector<MisureColonna> Misure(const Foglio& foglio, bool intestata) {
    std::vector<MisureColonna> misure;
    for (std::size_t r = 0; r < foglio.righe.size(); ++r) {
        const auto& riga = foglio.righe[r];
        misure.resize(std::max(misure.size(), riga.size()));
        for (std::size_t c = 0; c < riga.size(); ++c)
            misure[c].Aggiunge(riga[c], r == 0, intestata);
    }
    return misure;
}

ColonnaXls Colonna(const MisureColonna& misure, const Valore& titolo, bool intestata) {
    const auto* unita = std::get_if<std::string>(&titolo);
    ColonnaXls aspetto;
    std::size_t numeri = misure.numeri;
    if (intestata && unita != nullptr && UnitaUniforme(*unita) && misure.decimali <= decimaliMassimi) {
        aspetto.numeri = static_cast<StileXls>(static_cast<unsigned>(StileXls::Decimali0) + misure.decimali);
        if (misure.decimali > 0 && misure.intere > 0)
            numeri = misure.intere + 1 + misure.decimali;
    }
    const std::size_t caratteri = std::max(misure.altro, numeri) + 2;
    aspetto.larghezza = static_cast<unsigned>(std::clamp<std::size_t>(caratteri, 8, 60) * 256);
    return aspetto;
}

} // namespace

void ScriveStili(FlussoBiff& flusso) {
    for (int i = 0; i < 4; ++i)
        ScriveFont(flusso, false);
    ScriveFont(flusso, true);
    ScriveFormato(flusso, 164, u"0.0");
    ScriveFormato(flusso, 165, u"0.000");
    ScriveFormato(flusso, 166, u"0.0000");
    ScriveXfDiStile(flusso);
    ScriveXf(flusso, {});
    ScriveXf(flusso, XfIntestazione());
    for (const unsigned formato : formatiNumerici)
        ScriveXf(flusso, {.formato = formato, .propri = 0x04});
    flusso.Record(Biff::Style, Ottetti().U16(0x8000).U8(0).U8(0xFF));
}

bool HaIntestazione(const Foglio& foglio) {
    if (foglio.righe.empty())
        return false;
    const auto& prima = foglio.righe.front();
    const auto testo = [](const Cella& c) { return std::holds_alternative<std::string>(c.valore); };
    return std::ranges::any_of(prima, testo) &&
           std::ranges::all_of(prima, [&](const Cella& c) { return Vuoto(c.valore) || testo(c); });
}

std::vector<ColonnaXls> Colonne(const Foglio& foglio) {
    const bool intestata = HaIntestazione(foglio);
    const std::vector<MisureColonna> misure = Misure(foglio, intestata);
    std::vector<ColonnaXls> colonne;
    colonne.reserve(misure.size());
    for (std::size_t c = 0; c < misure.size(); ++c)
        colonne.push_back(Colonna(misure[c], foglio.Legge(0, c), intestata));
    return colonne;
}

StileXls StileCella(const Cella& cella, bool intestazione, const ColonnaXls& colonna) {
    if (intestazione)
        return StileXls::Intestazione;
    if (!std::holds_alternative<double>(cella.valore))
        return StileXls::Generale;
    switch (cella.genere) {
    case GenereNumero::Data:
        return StileXls::Data;
    case GenereNumero::DataOra:
        return StileXls::DataOra;
    case GenereNumero::Ora:
        return StileXls::Ora;
    default:
        return colonna.numeri;
    }
}

} // namespace sagomi
