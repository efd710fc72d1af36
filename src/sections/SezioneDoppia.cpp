#include "sections/SezioneDoppia.h"

#include <cmath>
#include <utility>

#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

template <typename S> SagomoSingolo Comune(const S& s) {
    SagomoSingolo uno;
    uno.nome = s.Designation;
    uno.Area = s.Area;
    uno.Jy = s.Jy;
    uno.Jz = s.Jz;
    uno.iY = s.iY;
    uno.iZ = s.Iz;
    uno.b = s.b;
    uno.h = s.h;
    if (s.SezioneGenericaCorrente) {
        uno.e = s.SezioneGenericaCorrente->xG;
        uno.yc = s.SezioneGenericaCorrente->yG;
    }
    return uno;
}

/// Side by side: the upright axis moves by d0 (parallel axis theorem), the other one stays.
SagomoDoppio Accostati(const SagomoSingolo& uno, double s, double d0) {
    SagomoDoppio due;
    due.Area = 2 * uno.Area;
    due.Jy = 2 * uno.Jy;
    due.iY = uno.iY;
    due.iZ = std::hypot(uno.iZ, d0);
    due.Jz = due.iZ * due.iZ * due.Area;
    due.Wely = 2 * uno.Jy / (uno.h - uno.yc);
    due.Welz = due.Jz / (uno.b + s / 2);
    return due;
}

/// The same section seen along the other axis.
SagomoSingolo Scambiato(SagomoSingolo uno) {
    std::swap(uno.b, uno.h);
    std::swap(uno.e, uno.yc);
    std::swap(uno.Jy, uno.Jz);
    std::swap(uno.iY, uno.iZ);
    return uno;
}

SagomoDoppio Scambiato(SagomoDoppio due) {
    std::swap(due.Jy, due.Jz);
    std::swap(due.Wely, due.Welz);
    std::swap(due.iY, due.iZ);
    return due;
}

template <typename S> void Scrive(S& sezione, const SagomoSingolo& uno, const SagomoDoppio& due) {
    sezione.Designation = "2 " + uno.nome;
    sezione.Area = due.Area;
    sezione.b = uno.b;
    sezione.h = uno.h;
    sezione.iY = due.iY;
    sezione.Iz = due.iZ;
    sezione.Jy = due.Jy;
    sezione.Jz = due.Jz;
    sezione.Wely = due.Wely;
    sezione.Welz = due.Welz;
}

template <typename S> void Contrassegna(S& sezione, double s, bool corto) {
    sezione.Doppi = true;
    sezione.DoppiCorto = corto;
    sezione.dDoppi = s;
}

} // namespace

SagomoSingolo SingoloDi(const SezioneSagomoU& sezione) {
    SagomoSingolo uno = Comune(sezione);
    uno.Wply = sezione.Wply;
    uno.Wplz = sezione.Wplz;
    return uno;
}

SagomoSingolo SingoloDi(const SezioneSagomoL& sezione) { return Comune(sezione); }

// About the axis between them each channel lies on one side: its plastic modulus is a first moment.
SagomoDoppio UdoppiCalcolaSub(const SagomoSingolo& uno, double s, bool accostaAli) {
    const double d0 = (accostaAli ? uno.b - uno.e : uno.e) + s / 2;
    SagomoDoppio due = Accostati(uno, s, d0);
    due.Wply = 2 * uno.Wply;
    due.Wplz = due.Area * d0;
    return due;
}

SagomoDoppio LdoppiCalcolaSub(const SagomoSingolo& uno, double s, bool accostaCorti) {
    if (accostaCorti)
        return Scambiato(LdoppiCalcolaSub(Scambiato(uno), s, false));
    return Accostati(uno, s, uno.e + s / 2);
}

void RendeDoppia(SezioneSagomoU& sezione, const SagomoSingolo& uno, double s, bool accostaAli) {
    const SagomoDoppio due = UdoppiCalcolaSub(uno, s, accostaAli);
    Scrive(sezione, uno, due);
    sezione.Wply = due.Wply;
    sezione.Wplz = due.Wplz;
    Contrassegna(sezione, s, accostaAli);
}

void RendeDoppia(SezioneSagomoL& sezione, const SagomoSingolo& uno, double s, bool accostaCorti) {
    Scrive(sezione, uno, LdoppiCalcolaSub(uno, s, accostaCorti));
    Contrassegna(sezione, s, accostaCorti);
}

} // namespace sagomi
