#include "screens/SagomiGuida.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <variant>

#include "frame/Cartelle.h"
#include "frame/GeneraleSagomi.h"

namespace sagomi {

namespace {

Gara Letta(const std::filesystem::path& cartella) {
    try {
        return LeggeGara(cartella, {"IPE", "HEA", "HEB", "UPN", "L Uguali"});
    } catch (const std::exception&) {
        return {}; // a picture that is not there; the screens tell what is wrong with the workbook
    }
}

/// Place of a grade among those of the settings' defaults.
std::size_t Grado(double fy) { return fy < 255 ? 0 : fy < 315 ? 1 : 2; }

} // namespace

const Gara& GaraGuida() {
    static std::map<std::filesystem::path, Gara> lette;
    const std::filesystem::path cartella = CartellaInstallata();
    Gara& gara = lette[cartella];
    if (gara.sagomi.empty()) // the workbook may come back
        gara = Letta(cartella);
    return gara;
}

const SagomoInGara& SagomoGuida(std::string_view nome) {
    const auto& sagomi = GaraGuida().sagomi;
    const auto found = std::ranges::find_if(
        sagomi, [nome](const SagomoInGara& s) { return !s.utente && s.Designazione() == nome; });
    if (found == sagomi.end())
        throw std::out_of_range("il catalogo non ha il sagomo " + std::string(nome));
    return *found;
}

template <typename Sezione> Sezione SezioneGuida(std::string_view nome, double fy) {
    constexpr std::array nomi{"S235 (Fe360)", "S275 (Fe430)", "S355 (Fe510)"};
    constexpr std::array fu{360.0, 430.0, 510.0};
    Sezione s = std::get<Sezione>(SagomoGuida(nome).sezione);
    s.TipoAcciaio = nomi.at(Grado(fy));
    s.fy = fy;
    if constexpr (requires { s.fu; })
        s.fu = fu.at(Grado(fy));
    s.InizializzaSezione(nullptr);
    return s;
}

template SezioneDoppioT SezioneGuida<SezioneDoppioT>(std::string_view, double);
template SezioneSagomoU SezioneGuida<SezioneSagomoU>(std::string_view, double);
template SezioneSagomoL SezioneGuida<SezioneSagomoL>(std::string_view, double);

} // namespace sagomi
