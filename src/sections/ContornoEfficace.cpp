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

Tratto CercaTratto(const std::vector<bool>& oltre) {
    const std::size_t n = oltre.size();
    Tratto tratto;
    for (std::size_t i = 0; i < n; ++i)
        if (oltre[i] && !oltre[(i + n - 1) % n])
            tratto.primo = i;
    while (tratto.lunghezza < n && oltre[(tratto.primo + tratto.lunghezza) % n])
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
    std::vector<bool> oltre(n);
    for (std::size_t i = 0; i < n; ++i)
        oltre[i] = (y[i] > parte.livello) == parte.sopra && (destra ? x[i] > xTaglio : x[i] < xTaglio);
    const Tratto tratto = CercaTratto(oltre);
    if (tratto.lunghezza == 0 || tratto.lunghezza == n)
        return;

    const auto incrocio = [&](std::size_t dentro, std::size_t fuori) {
        const double f = (xTaglio - x[dentro]) / (x[fuori] - x[dentro]);
        return y[dentro] + f * (y[fuori] - y[dentro]);
    };
    const std::size_t ultimo = (tratto.primo + tratto.lunghezza - 1) % n;
    const double yEntrata = incrocio((tratto.primo + n - 1) % n, tratto.primo);
    const double yUscita = incrocio((ultimo + 1) % n, ultimo);
    for (std::size_t k = 0; k < tratto.lunghezza; ++k) {
        const std::size_t i = (tratto.primo + k) % n;
        x[i] = xTaglio;
        y[i] = k + 1 < tratto.lunghezza ? yEntrata : yUscita;
    }
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
