#include "frame/Numeri.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "frame/Errori.h"
#include "frame/Figura.h"
#include "frame/LetturaNumero.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

/// S of a result box: the plain text of the absolute value, with its figures counted.
struct TestoContato {
    Decimale cifre;         ///< not negative, to the figures of the type
    bool esponente = false; ///< written with a power of ten
    int nTot = 0;
    int nInt = 0;

    [[nodiscard]] std::string Testo(std::string_view separatore) const {
        return esponente ? TestoEsponente(cifre, separatore) : TestoPosizionale(cifre, separatore);
    }
};

TestoContato Conta(const NumeroMostrato& valore) {
    TestoContato s;
    s.cifre = valore.CifreTipo();
    s.cifre.negativo = false;
    s.esponente =
        !s.cifre.Zero() && (s.cifre.punto < -3 || s.cifre.punto > 15); // positional from 1E-4 to 1E15
    const std::string testo = s.Testo(".");
    const int lunghezza = static_cast<int>(testo.size());
    const std::size_t punto = testo.find('.');
    const int tolti = std::abs(valore.Valore()) < 1 ? 2 : 1; // the separator, and below 1 the zero before it
    s.nTot = punto == std::string::npos ? lunghezza : lunghezza - tolti;
    s.nInt = punto == std::string::npos ? lunghezza : static_cast<int>(punto) + 1 - tolti;
    return s;
}

std::string DisegnaAssoluto(std::string_view figura, const NumeroMostrato& valore) {
    Decimale d = valore.Cifre();
    d.negativo = false;
    return Disegna(Figura(figura), d, Utf8DaCodice(CarDecimale), Utf8DaCodice(CarMigliaia));
}

std::string Zeri(int n) { return std::string(static_cast<std::size_t>(std::max(n, 0)), '0'); }

/// The digits of a result box that has more of them than it may show.
std::string Accorcia(int nCifre, int nInt, const NumeroMostrato& valore) {
    if (nInt >= nCifre)
        return DisegnaAssoluto("#,##0", valore);
    return DisegnaAssoluto("#,##0." + Zeri(nCifre - nInt), valore);
}

/// A blank stands for the sign of what is not negative.
std::string Segno(const NumeroMostrato& valore) { return valore.Valore() < 0 ? "-" : " "; }

bool SoloZeri(std::string_view testo) { return testo.find_first_of("123456789") == std::string_view::npos; }

double AIntero(double valore, double minimo, double massimo) {
    double intero = std::floor(valore);
    const double resto = valore - intero;
    if (resto > 0.5 || (resto == 0.5 && std::fmod(intero, 2.0) != 0))
        intero += 1;
    if (!(intero >= minimo && intero <= massimo)) // a NaN fails too
        throw ErroreAritmetico("Valore fuori dai limiti: " + TestoPiano(valore));
    return intero;
}

} // namespace

bool NumeroMostrato::Mostrabile() const { return !nullo_ && std::isfinite(valore_); }

Decimale NumeroMostrato::Cifre() const {
    return singolo_ ? CifreMinime(static_cast<float>(valore_)) : CifreTipo();
}

Decimale NumeroMostrato::CifreTipo() const {
    return ArrotondaSignificative(CifreEsatte(valore_), singolo_ ? 7 : 15);
}

std::string Utf8DaCodice(std::uint16_t codice) {
    if (codice == 0)
        return {};
    const auto byte = [](int b) { return static_cast<char>(static_cast<unsigned char>(b)); };
    if (codice < 0x80)
        return {byte(codice)};
    if (codice < 0x800)
        return {byte(0xC0 | (codice >> 6)), byte(0x80 | (codice & 0x3F))};
    return {byte(0xE0 | (codice >> 12)), byte(0x80 | ((codice >> 6) & 0x3F)), byte(0x80 | (codice & 0x3F))};
}

double ValoreNumerico(std::string_view testo) {
    std::string numero(testo);
    const std::string migliaia = Utf8DaCodice(CarMigliaia);
    if (!migliaia.empty())
        for (std::size_t i = numero.find(migliaia); i != std::string::npos; i = numero.find(migliaia, i))
            numero.erase(i, migliaia.size());
    const std::string decimale = Utf8DaCodice(CarDecimale);
    if (const std::size_t i = numero.find(decimale); !decimale.empty() && i != std::string::npos)
        numero.replace(i, decimale.size(), ".");
    return LeggeNumero<double>(numero).valore;
}

std::string FormatoCifre(int nCifre, const NumeroMostrato& valore) {
    if (!valore.Mostrabile())
        return {};
    const TestoContato s = Conta(valore);
    const std::string separatore = Utf8DaCodice(CarDecimale);
    const std::string cifre = s.nTot < nCifre ? s.Testo(separatore) : Accorcia(nCifre, s.nInt, valore);
    const std::string testo = Segno(valore) + cifre;
    return testo == " 0" + separatore || testo == "-0" + separatore ? " 0" : testo;
}

std::string FormatoCifreEsp(int nCifre, const NumeroMostrato& valore) {
    if (!valore.Mostrabile())
        return {};
    const TestoContato s = Conta(valore);
    if (s.nTot < nCifre)
        return Segno(valore) + s.Testo(Utf8DaCodice(CarDecimale));
    if (std::abs(valore.Valore()) < 1)
        return Segno(valore) + DisegnaAssoluto("#." + Zeri(nCifre - 1) + "E+00", valore);
    return Segno(valore) + Accorcia(nCifre, s.nInt, valore);
}

std::string FormatoDecimali(int nDec, const NumeroMostrato& valore) {
    if (!valore.Mostrabile())
        return {};
    const std::string figura = "#,##0";
    const std::string cifre = DisegnaAssoluto(nDec > 0 ? figura + "." + Zeri(nDec) : figura, valore);
    return SoloZeri(cifre) ? " 0" : Segno(valore) + cifre;
}

std::string FormatoEsponenziale(int nCar, const NumeroMostrato& valore) {
    constexpr int minimo = 6; // "0." and "E+00"
    if (nCar < minimo) {
        Avvisa("n. caratteri minimo = " + TestoPiano(minimo));
        return {};
    }
    if (!valore.Mostrabile())
        return {};
    const std::string cifre = DisegnaAssoluto(" 0." + Zeri(nCar - minimo) + "E+00", valore);
    return SoloZeri(cifre) || valore.Valore() >= 0 ? cifre : "-" + cifre.substr(1);
}

std::string Formato(std::string_view figura, const NumeroMostrato& valore) {
    if (!valore.Mostrabile())
        return {};
    return Disegna(Figura(figura), valore.Cifre(), Utf8DaCodice(CarDecimale), Utf8DaCodice(CarMigliaia));
}

std::string TestoPiano(const NumeroMostrato& valore) {
    if (!valore.Mostrabile())
        return {};
    const Decimale cifre = valore.CifreTipo();
    return TestoPosizionale(cifre, Utf8DaCodice(CarDecimale));
}

std::int16_t A16Bit(double valore) {
    using Limiti = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(AIntero(valore, Limiti::min(), Limiti::max()));
}

std::int32_t A32Bit(double valore) {
    using Limiti = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(AIntero(valore, Limiti::min(), Limiti::max()));
}

} // namespace sagomi
