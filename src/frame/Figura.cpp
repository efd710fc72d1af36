#include "frame/Figura.h"

#include <algorithm>
#include <cstddef>

namespace sagomi {

namespace {

bool Segnaposto(char c) { return c == '0' || c == '#'; }

/// Where the digits begin: at a digit mark, or at a separator with a digit mark behind it.
std::size_t InizioCifre(std::string_view figura) {
    for (std::size_t i = 0; i < figura.size(); ++i)
        if (Segnaposto(figura[i]) || (figura[i] == '.' && i + 1 < figura.size() && Segnaposto(figura[i + 1])))
            return i;
    return figura.size();
}

/// "E+00" behind the digits: the length of the mark, 0 for none.
std::size_t LunghezzaEsponente(std::string_view resto) {
    if (!resto.starts_with("E+"))
        return 0;
    std::size_t n = 2;
    while (n < resto.size() && resto[n] == '0')
        ++n;
    return n > 2 ? n : 0;
}

std::string Raggruppa(std::string_view cifre, std::string_view gruppo) {
    std::string testo;
    for (std::size_t i = 0; i < cifre.size(); ++i) {
        if (i > 0 && (cifre.size() - i) % 3 == 0)
            testo += gruppo;
        testo += cifre[i];
    }
    return testo;
}

std::string Riempie(std::string cifre, int minimo, bool davanti) {
    const auto larghezza = static_cast<std::size_t>(minimo);
    if (cifre.size() < larghezza)
        cifre.insert(davanti ? 0 : cifre.size(), larghezza - cifre.size(), '0');
    return cifre;
}

std::string Posizionale(const Figura& f, const Decimale& d, std::string_view separatore,
                        std::string_view gruppo) {
    const std::string intere = Riempie(CifreIntere(d), f.interiMinimi, true);
    std::string testo = f.gruppi ? Raggruppa(intere, gruppo) : intere;
    if (f.separatore)
        testo.append(separatore).append(Riempie(CifreDecimali(d), f.decimaliMinimi, false));
    return testo;
}

/// Moves the separator behind as many digits as the picture has marks and rounds there. Rounding may add a
/// digit in front (9.9996 becomes 10.000), which moves it again.
int Normalizza(const Figura& f, Decimale& d) {
    if (d.Zero())
        return 0;
    int esponente = d.punto - f.interi;
    d.punto = f.interi;
    d = ArrotondaDecimali(d, f.decimali);
    if (d.punto > f.interi) {
        esponente += d.punto - f.interi;
        d.punto = f.interi;
    }
    return esponente;
}

} // namespace

Figura::Figura(std::string_view figura) {
    std::size_t i = InizioCifre(figura);
    prefisso = figura.substr(0, i);
    vuota = i == figura.size();
    bool visto0 = false;
    for (; i < figura.size() && (Segnaposto(figura[i]) || figura[i] == ','); ++i) {
        gruppi = gruppi || figura[i] == ',';
        visto0 = visto0 || figura[i] == '0';
        interi += Segnaposto(figura[i]) ? 1 : 0;
        interiMinimi += Segnaposto(figura[i]) && visto0 ? 1 : 0;
    }
    separatore = i < figura.size() && figura[i] == '.';
    for (i += separatore ? 1 : 0; separatore && i < figura.size() && Segnaposto(figura[i]); ++i) {
        ++decimali;
        decimaliMinimi = figura[i] == '0' ? decimali : decimaliMinimi;
    }
    const std::size_t esponente = LunghezzaEsponente(figura.substr(std::min(i, figura.size())));
    cifreEsponente = esponente > 0 ? static_cast<int>(esponente) - 2 : 0;
    suffisso = figura.substr(std::min(i + esponente, figura.size()));
}

std::string Disegna(const Figura& figura, const Decimale& numero, std::string_view separatore,
                    std::string_view gruppo) {
    if (figura.vuota)
        return figura.prefisso;
    Decimale d = numero;
    std::string esponente;
    if (figura.cifreEsponente > 0) {
        const int e = Normalizza(figura, d);
        esponente = "E" + EsponenteConSegno(e, figura.cifreEsponente);
    } else {
        d = ArrotondaDecimali(d, figura.decimali);
    }
    const std::string segno = d.negativo && !d.Zero() ? "-" : "";
    return segno + figura.prefisso + Posizionale(figura, d, separatore, gruppo) + esponente + figura.suffisso;
}

} // namespace sagomi
