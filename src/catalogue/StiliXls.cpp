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

std::string TestoCorto(double v) {
    std::array<char, 400> buffer{};
    const auto fine =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), v, std::chars_format::fixed);
    return {buffer.data(), fine.ptr};
}

std::size_t Decimali(const std::string& testo) {
    const std::size_t punto = testo.find('.');
    return punto == std::string::npos ? 0 : testo.size() - punto - 1;
}

/// The columns whose numbers lie within a few powers of ten, told by the unit in the heading.
bool UnitaUniforme(std::string_view intestazione) {
    return std::ranges::any_of(std::array<std::string_view, 5>{"(mm)", "(cm)", "(cm2)", "(Kg/m)", "(kg/m)"},
                               [&](std::string_view unita) { return intestazione.ends_with(unita); });
}

std::size_t Caratteri(const Cella& cella, std::size_t decimali) {
    if (const auto* testo = std::get_if<std::string>(&cella.valore))
        return Utf16DaUtf8(*testo).size();
    const auto* numero = std::get_if<double>(&cella.valore);
    if (numero == nullptr || !std::isfinite(*numero))
        return 0;
    if (cella.genere != GenereNumero::Semplice)
        return 16;
    const std::string testo = TestoCorto(*numero);
    const std::size_t suoi = Decimali(testo);
    return suoi >= decimali ? testo.size() : testo.size() + decimali - suoi + (suoi == 0 ? 1 : 0);
}

std::size_t DecimaliColonna(const Foglio& foglio, std::size_t colonna) {
    std::size_t decimali = 0;
    for (std::size_t r = 1; r < foglio.righe.size(); ++r)
        if (const auto* v = std::get_if<double>(&foglio.Legge(r, colonna)); v != nullptr && std::isfinite(*v))
            decimali = std::max(decimali, Decimali(TestoCorto(*v)));
    return decimali;
}

ColonnaXls Colonna(const Foglio& foglio, std::size_t colonna, bool intestata) {
    const auto* titolo = std::get_if<std::string>(&foglio.Legge(0, colonna));
    std::size_t decimali = 0;
    ColonnaXls aspetto;
    if (intestata && titolo != nullptr && UnitaUniforme(*titolo)) {
        decimali = DecimaliColonna(foglio, colonna);
        if (decimali <= decimaliMassimi)
            aspetto.numeri = static_cast<StileXls>(static_cast<unsigned>(StileXls::Decimali0) + decimali);
        else
            decimali = 0;
    }
    std::size_t caratteri = 0;
    for (std::size_t r = 0; r < foglio.righe.size(); ++r)
        if (colonna < foglio.righe[r].size())
            caratteri = std::max(caratteri, Caratteri(foglio.righe[r][colonna], decimali) +
                                                (r == 0 && intestata ? 1 : 0)); // bold is wider
    aspetto.larghezza = static_cast<unsigned>(std::clamp<std::size_t>(caratteri + 2, 8, 60) * 256);
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
    std::size_t n = 0;
    for (const auto& riga : foglio.righe)
        n = std::max(n, riga.size());
    const bool intestata = HaIntestazione(foglio);
    std::vector<ColonnaXls> colonne;
    colonne.reserve(n);
    for (std::size_t c = 0; c < n; ++c)
        colonne.push_back(Colonna(foglio, c, intestata));
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
