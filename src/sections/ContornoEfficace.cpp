#include "sections/ContornoEfficace.h"

#include <cstddef>

#include "geometry/ForoSezione.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

/// The vertices beyond a cut form one run of the closed outline; here by position, from 0.
struct Tratto {
    std::size_t primo = 0;
    std::size_t lunghezza = 0;
};

std::size_t Dopo(std::size_t i, std::size_t n) { return i + 1 == n ? 0 : i + 1; }

/// @param oltre  whether the vertex at a position lies beyond the cut
template <typename Oltre> Tratto CercaTratto(std::size_t n, Oltre oltre) {
    Tratto tratto;
    bool prima = n > 0 && oltre(n - 1);
    for (std::size_t i = 0; i < n; ++i) {
        const bool qui = oltre(i);
        if (qui && !prima)
            tratto.primo = i;
        prima = qui;
    }
    for (std::size_t i = tratto.primo; tratto.lunghezza < n && oltre(i); i = Dopo(i, n))
        ++tratto.lunghezza;
    return tratto;
}

} // namespace

SezioneGenerica& CalcolaContorno(std::shared_ptr<SezioneGenerica>& sezione, const std::vector<double>& x,
                                 const std::vector<double>& y, std::int16_t n) {
    if (!sezione || sezione.use_count() > 1)
        sezione = std::make_shared<SezioneGenerica>();
    sezione->CoordinateSezione(x, y, n);
    sezione->CaratteristicheStaticheSezione();
    return *sezione;
}

void TagliaPunta(std::vector<double>& x, std::vector<double>& y, const ParteContorno& parte, double xTaglio,
                 bool destra) {
    const std::size_t n = x.size();
    const Tratto tratto = CercaTratto(n, [&](std::size_t i) {
        return (y[i] > parte.livello) == parte.sopra && (destra ? x[i] > xTaglio : x[i] < xTaglio);
    });
    if (tratto.lunghezza == 0 || tratto.lunghezza == n)
        return;

    const auto incrocio = [&](std::size_t dentro, std::size_t fuori) {
        const double f = (xTaglio - x[dentro]) / (x[fuori] - x[dentro]);
        return y[dentro] + f * (y[fuori] - y[dentro]);
    };
    const std::size_t ultimo = (tratto.primo + tratto.lunghezza - 1) % n;
    const double yEntrata = incrocio((tratto.primo + n - 1) % n, tratto.primo);
    const double yUscita = incrocio(Dopo(ultimo, n), ultimo);
    for (std::size_t i = tratto.primo; i != ultimo; i = Dopo(i, n)) {
        x[i] = xTaglio;
        y[i] = yEntrata;
    }
    x[ultimo] = xTaglio;
    y[ultimo] = yUscita;
}

void ToglieAnima(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double y0, double H,
                 std::string_view tipo) {
    if (H > 0)
        ForoSezione(x, y, n, y0, H, tipo);
}

Bozza& BozzaContorno() {
    static thread_local Bozza bozza;
    return bozza;
}

} // namespace sagomi
