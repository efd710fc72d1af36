#include "catalogue/CartellaLavoro.h"

#include <glib.h>
#include <unistd.h>

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <tuple>

#include "catalogue/Catalogo.h"
#include "catalogue/SagomoUtente.h"
#include "frame/Cartelle.h"
#include "frame/FileAtomico.h"
#include "frame/LetturaFile.h"
#include "frame/MotivoFile.h"

namespace sagomi {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view cartellaStandard = "Sagomi.xls";
constexpr std::string_view impostazioni = "Sagomi.ini";
constexpr std::string_view utenteVuota = "SagomiUtente-vuota.xls"; ///< as installed, without rows
constexpr std::string_view registro = ".Sagomi.xls.copia";         ///< what is known of the copy
constexpr std::size_t byteMassimi = std::size_t{64} << 20U;
constexpr std::size_t byteMassimiRegistro = std::size_t{16} << 20U;
constexpr const char* cartellaVecchia = "Sagomi"; ///< of older programs, in the configuration folder

bool Scrivibile(const fs::path& cartella) { return access(cartella.c_str(), W_OK | X_OK) == 0; }

bool Esiste(const fs::path& file) {
    std::error_code errore;
    return fs::exists(fs::symlink_status(file, errore));
}

std::string_view Testo(const FileLetto& letto) {
    return {reinterpret_cast<const char*>(letto.byte.data()), letto.byte.size()};
}

std::string Somma(const FileLetto& letto) {
    const std::unique_ptr<gchar, decltype(&g_free)> somma(
        g_compute_checksum_for_data(G_CHECKSUM_SHA256, letto.byte.data(), letto.byte.size()), &g_free);
    return somma.get();
}

/// Why nothing can be made in a folder, also in one that could not be made itself.
std::string MotivoCartella(const fs::path& cartella) {
    fs::path manca = cartella;
    while (!Esiste(manca.parent_path()) && manca.has_relative_path())
        manca = manca.parent_path();
    return MotivoNonScritto(Esiste(cartella) ? cartella / impostazioni : manca);
}

void ScriveOppureLancia(const fs::path& file, std::string_view byte) {
    std::error_code errore;
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add,
                    errore); // the program takes them away
    if (!ScriveAtomico(file, byte))
        throw std::runtime_error(MotivoNonScritto(file));
}

bool StessiByte(const fs::path& a, const fs::path& b) {
    std::error_code nessunoA, nessunoB;
    const bool lunghi = fs::file_size(a, nessunoA) == fs::file_size(b, nessunoB);
    return !nessunoA && !nessunoB && lunghi &&
           LeggeFile(a, byteMassimi).byte == LeggeFile(b, byteMassimi).byte;
}

/// The older file goes only when the new one lies on the disk. One that is there already stays, but for the
/// user's workbook as it was installed, without rows.
void Trasloca(const fs::path& da, const fs::path& a, std::string_view nome) {
    const fs::path vecchio = FileAccanto(da, nome);
    const fs::path nuovo = FileAccanto(a, nome);
    const auto senzaRighe = [&] {
        return nome == cartellaUtente && StessiByte(nuovo, FileAccanto(a, utenteVuota));
    };
    if (!Esiste(vecchio) || (Esiste(nuovo) && !senzaRighe()))
        return;
    ScriveOppureLancia(nuovo, Testo(LeggeFile(vecchio, byteMassimi)));
    std::error_code errore;
    fs::remove(vecchio, errore);
}

void CopiaSeManca(const fs::path& da, std::string_view nome, const fs::path& a, std::string_view nuovo) {
    if (const fs::path file = FileAccanto(da, nome); Esiste(file) && !Esiste(FileAccanto(a, nuovo)))
        ScriveOppureLancia(a / nuovo, Testo(LeggeFile(file, byteMassimi)));
}

void CopiaSeManca(const fs::path& da, const fs::path& a, std::string_view nome) {
    CopiaSeManca(da, nome, a, nome);
}

/// The standard workbook of a working folder: a copy of the installed one until the user changes it. What was
/// copied, and the state of the installed file then, is kept beside it.
class CopiaStandard {
public:
    CopiaStandard(const fs::path& da, const fs::path& a)
        : originale_(FileAccanto(da, cartellaStandard)), copia_(FileAccanto(a, cartellaStandard)),
          registro_(a / registro), adesso_(ImprontaDi(originale_)) {
        LeggeRegistro();
    }

    /// A copy that is there, but cannot be renewed now, is renewed at another start.
    void Rinnova() {
        const bool manca = !Esiste(copia_);
        if (!Esiste(originale_) || (!manca && vista_ == adesso_))
            return;
        try {
            Confronta(manca);
        } catch (const std::runtime_error&) {
            if (manca)
                throw;
        }
    }

private:
    /// Where it cannot be read nothing is known of the copy.
    void LeggeRegistro() {
        try {
            std::istringstream riga{std::string(Testo(LeggeFile(registro_, byteMassimiRegistro)))};
            riga >> somma_ >> vista_.disco >> vista_.nodo >> vista_.lunghezza >> vista_.secondi >>
                vista_.nanosecondi;
        } catch (const std::runtime_error&) {
            somma_.clear();
        }
    }

    void Confronta(bool manca) {
        const FileLetto nuova = LeggeFile(originale_, byteMassimi);
        const std::string sommaNuova = Somma(nuova);
        const std::string sommaCopia = manca ? std::string() : Somma(LeggeFile(copia_, byteMassimi));
        if (manca || (sommaCopia == somma_ && sommaCopia != sommaNuova))
            ScriveOppureLancia(copia_, Testo(nuova));
        else if (sommaCopia != sommaNuova)
            return Annota(somma_); // the user's own
        Annota(sommaNuova);
    }

    /// Where this fails the next start compares again.
    void Annota(const std::string& somma) const {
        std::ostringstream riga;
        riga << (somma.empty() ? "-" : somma) << ' ' << adesso_.disco << ' ' << adesso_.nodo << ' '
             << adesso_.lunghezza << ' ' << adesso_.secondi << ' ' << adesso_.nanosecondi << '\n';
        std::ignore = ScriveAtomico(registro_, riga.str());
    }

    fs::path originale_, copia_, registro_;
    ImprontaFile adesso_, vista_;
    std::string somma_;
};

/// What the system has said, where the folders and their rights do not tell.
std::string MotivoNonCreata(const fs::path& lavoro, const std::error_code& errore) {
    if (errore == std::errc::no_such_file_or_directory)
        return "il sistema non ammette cartelle in quel posto";
    if (errore == std::errc::filename_too_long)
        return "il nome è troppo lungo";
    if (errore == std::errc::too_many_symbolic_link_levels)
        return "i collegamenti tornano su sé stessi";
    if (errore == std::errc::read_only_file_system)
        return "il disco è di sola lettura";
    return MotivoCartella(lavoro);
}

void Crea(const fs::path& lavoro) {
    std::error_code errore;
    fs::create_directories(lavoro, errore);
    const std::error_code perche = errore;
    if (!fs::is_directory(lavoro, errore) || !Scrivibile(lavoro))
        throw std::runtime_error(MotivoNonCreata(lavoro, perche));
}

bool Uguali(const fs::path& a, const fs::path& b) {
    std::error_code errore;
    return fs::equivalent(a, b, errore);
}

void Prepara(const fs::path& installata, const fs::path& lavoro) {
    if (!Uguali(installata, lavoro)) {
        CopiaSeManca(installata, lavoro, impostazioni);
        CopiaSeManca(installata, lavoro, cartellaUtente);
        CopiaStandard(installata, lavoro).Rinnova();
    }
    CopiaSeManca(installata, utenteVuota, lavoro, cartellaUtente);
}

CartellaLavoro Scelta(const fs::path& installata, const fs::path& scelta) {
    const fs::path lavoro = fs::absolute(scelta).lexically_normal();
    try {
        Crea(lavoro);
        Prepara(installata, lavoro);
    } catch (const std::runtime_error& e) {
        throw std::runtime_error("la cartella " + lavoro.string() + " non si può usare: " + e.what());
    }
    return {lavoro, installata, {}};
}

CartellaLavoro Accanto(const fs::path& programma) {
    try {
        Prepara(programma, programma);
    } catch (const std::runtime_error& e) {
        return {programma, programma,
                "Non è possibile creare " + (programma / cartellaUtente).string() + ":\r\n" + e.what()};
    }
    return {programma, programma, {}};
}

CartellaLavoro DellUtente(const fs::path& installata) {
    const fs::path lavoro = CartellaDatiUtente() / "sagomi";
    try {
        if (!lavoro.is_absolute())
            throw std::runtime_error("l'utente non ha una cartella propria");
        Crea(lavoro);
        const fs::path vecchia = CartellaConfigurazioneUtente() / cartellaVecchia;
        for (const std::string_view nome : {impostazioni, cartellaUtente})
            Trasloca(vecchia, lavoro, nome);
        Prepara(installata, lavoro);
    } catch (const std::runtime_error& e) {
        return {installata, installata,
                "Non è possibile usare la cartella dei dati " + lavoro.string() + ":\r\n" + e.what() +
                    "\r\nImpostazioni e sagomi dell'utente non si possono conservare."};
    }
    return {lavoro, installata, {}};
}

} // namespace

CartellaLavoro ApreCartellaLavoro(const fs::path& programma, const std::optional<fs::path>& scelta) {
    const fs::path installata = CartellaFile(programma);
    if (scelta)
        return Scelta(installata, *scelta);
    if (installata == programma && Scrivibile(programma))
        return Accanto(programma);
    return DellUtente(installata);
}

} // namespace sagomi
