#include "choice/FileRelazione.h"

#include <exception>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "catalogue/Minuscole.h"
#include "choice/Opzioni.h"
#include "composite/AcciaioCls.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "frame/FileAtomico.h"
#include "frame/FileDati.h"
#include "frame/MotivoFile.h"
#include "frame/Numeri.h"
#include "frame/RaccoltaMessaggi.h"
#include "joints/Nodo.h"
#include "joints/RelazioneGiunto.h"
#include "joints/SagomiNodo.h"
#include "report/RelazioneNodo.h"
#include "report/RelazioneTrave.h"
#include "report/ScritturaPdf.h"
#include "report/TestoRelazione.h"

namespace sagomi {

namespace {

std::string Estensione(const std::filesystem::path& file) { return Minuscole(file.extension().string()); }

/// A file open to be read, for as long as this lives.
class FileAperto {
public:
    explicit FileAperto(const std::filesystem::path& file) : numero_(ApreFile(file, "L")) {
        if (numero_ == 0)
            throw ErroreUso(AvvisoNonLetto(file));
    }
    ~FileAperto() { ChiudeFile(numero_); }
    FileAperto(const FileAperto&) = delete;
    FileAperto& operator=(const FileAperto&) = delete;

    [[nodiscard]] std::int16_t Numero() const { return numero_; }

private:
    std::int16_t numero_;
};

[[noreturn]] void NonLetto(const std::filesystem::path& file, const std::vector<Messaggio>& detti) {
    std::string motivo = file.string() + " non è un file di Sagomi valido";
    for (const Messaggio& m : detti)
        motivo += ": " + m.testo;
    throw ErroreUso(motivo);
}

DocumentoLetto LeggeNodo(const std::filesystem::path& file, std::vector<Messaggio>& detti) {
    const FileAperto aperto(file);
    auto nodo = std::make_shared<Nodo>();
    std::string descrizione;
    if (!FileInOut("L", aperto.Numero(), {&descrizione}) || !nodo->AperturaFile(aperto.Numero()))
        NonLetto(file, detti);
    RinnovaNplRd(*nodo);
    const TestaRelazione testa{file.filename().string(), descrizione};
    return {RelazioneNodo(*nodo, descrizione),
            [nodo, testa](const std::function<bool(std::string_view)>& scrive) {
                return StampaRelazione(*nodo, testa, scrive);
            }};
}

DocumentoLetto LeggeTrave(const std::filesystem::path& file, std::vector<Messaggio>& detti) {
    const FileAperto aperto(file);
    AcciaioCls trave;
    if (!trave.FileLeggeScrive("L", aperto.Numero()))
        NonLetto(file, detti);
    return {RelazioneTraveVerificata(trave)};
}

/// The lines of a joint; the project stands above them, for on paper they have no place for it.
bool ScriveRighe(const DocumentoLetto& documento, const std::function<bool(std::string_view)>& scrive) {
    const std::string& progetto = documento.relazione.progetto;
    return (progetto.empty() || scrive("   PROGETTO: " + progetto)) && documento.righe(scrive);
}

/// Who reads the standard output finds out what it has not taken.
void ScriveTesto(const DocumentoLetto& documento, std::ostream& uscita) {
    if (!documento.righe)
        uscita << TestoRelazione(documento.relazione);
    else
        ScriveRighe(documento, [&uscita](std::string_view riga) { return bool(uscita << riga << '\n'); });
}

void ScriveTesto(const DocumentoLetto& documento, const std::filesystem::path& file) {
    if (!documento.righe) {
        if (!ScriveAtomico(file, TestoRelazione(documento.relazione)))
            throw std::runtime_error(AvvisoNonScritto(file));
        return;
    }
    const std::int16_t nFile = ApreFile(file, "S");
    if (nFile == 0)
        throw std::runtime_error(AvvisoNonScritto(file));
    if (!ScriveRighe(documento, [nFile](std::string_view riga) { return ScriveRiga(nFile, riga); })) {
        AbbandonaFile(nFile);
        throw std::runtime_error(AvvisoNonScritto(file));
    }
    if (!ChiudeFile(nFile))
        throw std::runtime_error(AvvisoNonScritto(file));
}

void ScriveDxf(const Relazione& r, const std::filesystem::path& file) {
    const StatoUscita prima;
    std::int16_t nFile = 0;
    if (!DxfApre(file, nFile))
        throw std::runtime_error(AvvisoNonScritto(file));
    try {
        Dispositivo = dispositivoDxf;
        OggettoGrafico = nullptr;
        ColorePenna = pennaInchiostro;
        r.disegno.PlottaInOggetto(nullptr, r.maschera);
    } catch (...) {
        DxfAbbandona();
        throw;
    }
    if (!DxfChiude())
        throw std::runtime_error(AvvisoNonScritto(file));
}

/// Nothing is written where something cannot be.
void ControllaUscite(const Relazione& r, const UsciteComando& uscite) {
    if (!uscite.dxf.empty() && !r.disegno.PlottaInOggetto)
        throw std::runtime_error("non c'è niente da disegnare di " + r.oggetto);
    for (const std::filesystem::path& file : {uscite.relazione, uscite.pdf, uscite.dxf}) {
        FileAtomico prova; // goes again, and what is there stays
        if (!file.empty() && file != uscitaStandard && !prova.Apre(file))
            throw std::runtime_error(AvvisoNonScritto(file));
    }
}

} // namespace

SenzaMigliaia::SenzaMigliaia() : prima_(CarMigliaia) { CarMigliaia = 0; }

SenzaMigliaia::~SenzaMigliaia() { CarMigliaia = prima_; }

bool EFileDati(std::string_view nome) {
    const std::string estensione = Estensione(std::filesystem::path(nome));
    return estensione == ".gfl" || estensione == ".sco";
}

DocumentoLetto LeggeDocumento(const std::filesystem::path& file) {
    RaccoltaMessaggi raccolta;
    const SenzaMigliaia piano; // but for the lines of a joint, which are those on paper
    DocumentoLetto documento =
        Estensione(file) == ".gfl" ? LeggeNodo(file, raccolta.raccolti) : LeggeTrave(file, raccolta.raccolti);
    for (Messaggio& m : raccolta.raccolti)
        documento.relazione.avvisi.push_back(std::move(m.testo));
    raccolta.raccolti.clear();
    return documento;
}

void ScriveUscite(const DocumentoLetto& documento, const UsciteComando& uscite, std::ostream& uscita) {
    ControllaUscite(documento.relazione, uscite);
    std::string scritti;
    const auto scrive = [&scritti](const std::filesystem::path& file, const auto& come) {
        if (file.empty())
            return;
        try {
            come(file);
        } catch (const std::exception& e) {
            throw std::runtime_error(e.what() + (scritti.empty() ? "" : "\ngià scritto: " + scritti));
        }
        scritti += (scritti.empty() ? "" : ", ") + file.string();
    };
    if (uscite.relazione == uscitaStandard)
        ScriveTesto(documento, uscita);
    else
        scrive(uscite.relazione, [&](const auto& file) { ScriveTesto(documento, file); });
    scrive(uscite.pdf, [&](const auto& file) { ScrivePdf(documento.relazione, file); });
    scrive(uscite.dxf, [&](const auto& file) { ScriveDxf(documento.relazione, file); });
}

} // namespace sagomi
