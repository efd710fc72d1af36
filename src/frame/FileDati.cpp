#include "frame/FileDati.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "frame/CodificaAnsi.h"
#include "frame/Decimale.h"
#include "frame/Errori.h"
#include "frame/FileAtomico.h"
#include "frame/LetturaFile.h"
#include "frame/LetturaNumero.h"
#include "frame/Messaggi.h"
#include "frame/MotivoFile.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view fineRiga = "\r\n";
constexpr std::string_view delimitatori = ",\r\n";
constexpr std::string_view aCapoNascosto = "\x01\x01"; // stands for a line break inside a text

/// What stops a record; it never leaves this file.
class ErroreFile : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct FileAperto {
    bool lettura = true;
    std::string byte;      // all that was read, or all that is to be written
    std::size_t posto = 0; // next byte to be read
    FileAtomico uscita;
};

std::map<std::int16_t, FileAperto>& FileAperti() {
    static std::map<std::int16_t, FileAperto> aperti;
    return aperti;
}

int& Silenzi() {
    static int silenzi = 0;
    return silenzi;
}

void Segnala(std::string_view testo, std::string_view titolo = {}) {
    if (Silenzi() == 0)
        Avvisa(testo, titolo);
}

bool Lettura(std::string_view modo) { return modo == "L"; }
bool Scrittura(std::string_view modo) { return modo == "S"; }

FileAperto& Aperto(std::int16_t nFile, bool lettura) {
    const auto posto = FileAperti().find(nFile);
    if (posto == FileAperti().end())
        throw ErroreFile("File non aperto");
    if (posto->second.lettura != lettura)
        throw ErroreFile(lettura ? "File aperto in scrittura" : "File aperto in lettura");
    return posto->second;
}

/// Runs one transfer and tells what went wrong in it.
template <typename Azione> bool Esegue(bool lettura, Azione azione) {
    std::string causa;
    try {
        azione();
        return true;
    } catch (const ErroreFile& errore) {
        causa = errore.what();
    } catch (const ErroreAritmetico& errore) {
        causa = errore.what();
    }
    Segnala(lettura ? "Lettura incompleta del file" : "Scrittura incompleta del file");
    if (lettura)
        Segnala(causa);
    return false;
}

// ---- numbers

// A result that is no number is kept as such, in the words of the time's own runtime.
constexpr std::string_view infinito = "1.#INF";
constexpr std::string_view menoInfinito = "-1.#INF";
constexpr std::string_view nonNumero = "1.#QNAN";

template <typename T> std::string TestoNonFinito(T valore) {
    if (std::isnan(valore))
        return std::string(nonNumero);
    return std::string(valore > 0 ? infinito : menoInfinito);
}

template <typename T> std::optional<T> ValoreNonFinito(std::string_view testo) {
    if (testo == nonNumero)
        return std::numeric_limits<T>::quiet_NaN();
    if (testo == infinito)
        return std::numeric_limits<T>::infinity();
    if (testo == menoInfinito)
        return -std::numeric_limits<T>::infinity();
    return std::nullopt;
}

template <typename T> std::string TestoMinimo(T valore, int esponenteMassimo) {
    if (!std::isfinite(valore))
        return TestoNonFinito(valore);
    const Decimale d = CifreMinime(valore);
    const int esponente = d.punto - 1;
    const bool positivo = d.Zero() || (esponente >= -4 && esponente <= esponenteMassimo);
    return positivo ? TestoPosizionale(d, ".") : TestoEsponente(d, ".");
}

std::string_view SenzaBianchi(std::string_view testo) {
    const std::size_t fine = testo.find_last_not_of(" \t");
    return testo.substr(0, fine == std::string_view::npos ? 0 : fine + 1);
}

/// "- 3": on the screen a number, in a file damage.
bool SegnoStaccato(std::string_view testo) {
    const std::size_t segno = testo.find_first_of("+-");
    return segno != std::string_view::npos && segno + 1 < testo.size() &&
           (testo[segno + 1] == ' ' || testo[segno + 1] == '\t');
}

template <typename T> T NumeroDaCampo(std::string_view campo) {
    const std::string_view testo = SenzaBianchi(campo);
    if (const std::optional<T> valore = ValoreNonFinito<T>(testo))
        return *valore;
    const NumeroLetto<T> letto = LeggeNumero<T>(testo);
    if (letto.fine == 0 || letto.fine != testo.size() || SegnoStaccato(testo))
        throw ErroreFile("Numero errato: \"" + Utf8DaAnsi(campo) + "\"");
    if (letto.troppoGrande)
        throw ErroreFile("Valore fuori dai limiti: " + std::string(testo));
    return letto.valore;
}

std::string Maiuscole(std::string_view testo) {
    std::string maiuscole(testo);
    for (char& c : maiuscole)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return maiuscole;
}

bool LogicoDaCampo(std::string_view campo) {
    const std::string testo = Maiuscole(SenzaBianchi(campo));
    if (testo == "#TRUE#" || testo == "#FALSE#")
        return testo == "#TRUE#";
    return NumeroDaCampo<double>(campo) != 0;
}

// ---- fields of a record

void ConsumaDelimitatore(FileAperto& file) {
    if (file.posto < file.byte.size())
        file.posto += file.byte.compare(file.posto, fineRiga.size(), fineRiga) == 0 ? fineRiga.size() : 1;
}

/// The bytes up to the next of some characters, or to the end of the file, where the reader then stands.
std::string Fino(FileAperto& file, std::string_view caratteri) {
    const std::size_t inizio = file.posto;
    file.posto = std::min(file.byte.find_first_of(caratteri, inizio), file.byte.size());
    return file.byte.substr(inizio, file.posto - inizio);
}

/// The bytes of the next field, without its quotes; the delimiter behind it is used up.
std::string PrendeCampo(FileAperto& file) {
    file.posto = std::min(file.byte.find_first_not_of(" \t", file.posto), file.byte.size());
    const bool virgolette = file.posto < file.byte.size() && file.byte[file.posto] == '"';
    std::string campo;
    if (virgolette) {
        ++file.posto;
        campo = Fino(file, "\"");
    }
    if (file.posto == file.byte.size())
        throw ErroreFile("Fine del file inattesa");
    std::string resto = Fino(file, delimitatori);
    ConsumaDelimitatore(file);
    return virgolette ? campo : resto;
}

/// Converts the bytes of a field to the type of its variable.
struct Riempie {
    std::string_view campo;

    void operator()(double* v) const { *v = NumeroDaCampo<double>(campo); }
    void operator()(Singolo* v) const { *v = double(NumeroDaCampo<float>(campo)); }
    void operator()(std::int16_t* v) const { *v = A16Bit(NumeroDaCampo<double>(campo)); }
    void operator()(std::int32_t* v) const { *v = A32Bit(NumeroDaCampo<double>(campo)); }
    void operator()(std::string* v) const { *v = Utf8DaAnsi(campo); }
    void operator()(bool* v) const { *v = LogicoDaCampo(campo); }
};

std::string TraVirgolette(std::string_view testo) { return "\"" + AnsiDaUtf8(testo) + "\""; }

/// The delimited form of a variable.
struct Testo {
    std::string operator()(const double* v) const { return NumeroFile(*v); }
    std::string operator()(const Singolo* v) const { return NumeroFile(*v); }
    std::string operator()(const std::int16_t* v) const { return NumeroFile(double(*v)); }
    std::string operator()(const std::int32_t* v) const { return NumeroFile(double(*v)); }
    std::string operator()(const std::string* v) const { return TraVirgolette(*v); }
    std::string operator()(const bool* v) const { return *v ? "#TRUE#" : "#FALSE#"; }
};

void ScriveUnita(FileAperto& file, const std::vector<std::string>& testi) {
    for (std::size_t i = 0; i < testi.size(); ++i)
        file.byte.append(i > 0 ? "," : "").append(testi[i]);
    if (!testi.empty())
        file.byte += fineRiga;
}

// ---- lines

std::string PrendeRiga(FileAperto& file) {
    if (file.posto == file.byte.size())
        throw ErroreFile("Fine del file inattesa");
    std::string riga = Fino(file, fineRiga);
    ConsumaDelimitatore(file);
    return riga;
}

/// Hides the line breaks of a text, whichever system they come from.
std::string NascondeACapo(std::string_view testo) {
    std::string nascosto;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        if (testo.substr(i).starts_with(fineRiga))
            ++i;
        if (fineRiga.find(testo[i]) != std::string_view::npos)
            nascosto += aCapoNascosto;
        else
            nascosto += testo[i];
    }
    return nascosto;
}

std::string MostraACapo(std::string testo) {
    for (std::size_t i = testo.find(aCapoNascosto); i != std::string::npos; i = testo.find(aCapoNascosto, i))
        testo.replace(i, aCapoNascosto.size(), fineRiga);
    return testo;
}

/// The texts of a line: each stands between quotes, one character separates it from the next.
std::vector<std::string> TestiDellaRiga(std::string_view riga) {
    std::vector<std::string> testi;
    if (!riga.starts_with('"'))
        return testi;
    while (!riga.empty()) {
        riga.remove_prefix(1);
        const std::size_t fine = std::min(riga.find('"'), riga.size());
        testi.push_back(MostraACapo(Utf8DaAnsi(riga.substr(0, fine))));
        riga.remove_prefix(std::min(fine + 2, riga.size()));
    }
    return testi;
}

std::int16_t NumeroLibero() {
    std::int16_t n = 1;
    while (FileAperti().count(n) > 0)
        ++n;
    return n;
}

bool ApreInLettura(const fs::path& percorso, FileAperto& file) {
    try {
        const FileLetto letto = LeggeFile(percorso, byteMassimiFileDati);
        file.byte.assign(letto.byte.begin(), letto.byte.end());
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

} // namespace

PrimitiveSilenziose::PrimitiveSilenziose() { ++Silenzi(); }
PrimitiveSilenziose::~PrimitiveSilenziose() { --Silenzi(); }

std::string NumeroFile(double valore) { return TestoMinimo(valore, 14); }
std::string NumeroFile(Singolo valore) { return TestoMinimo(valore.Stretto(), 6); }

std::int16_t ApreFile(const fs::path& percorso, std::string_view modo) {
    FileAperto file;
    file.lettura = Lettura(modo);
    if (!file.lettura && !Scrittura(modo))
        return 0;
    if (!(file.lettura ? ApreInLettura(percorso, file) : file.uscita.Apre(percorso)))
        return 0;
    const std::int16_t nFile = NumeroLibero();
    FileAperti().emplace(nFile, std::move(file));
    return nFile;
}

bool ChiudeFile(std::int16_t nFile) {
    auto nodo = FileAperti().extract(nFile);
    if (nodo.empty())
        return false;
    FileAperto& file = nodo.mapped();
    if (file.lettura || file.uscita.Conferma(file.byte))
        return true;
    const fs::path& target = file.uscita.Destinazione();
    Segnala("Scrittura incompleta del file", target.filename().string() + ": " + MotivoNonScritto(target));
    return false;
}

void AbbandonaFile(std::int16_t nFile) { FileAperti().erase(nFile); }

bool FileInOut(std::string_view modo, std::int16_t nFile, const std::vector<Campo>& campi) {
    if (Lettura(modo))
        return Esegue(true, [&] {
            for (const Campo& campo : campi)
                std::visit(Riempie{PrendeCampo(Aperto(nFile, true))}, campo);
        });
    if (Scrittura(modo))
        return Esegue(false, [&] {
            std::vector<std::string> testi;
            testi.reserve(campi.size());
            for (const Campo& campo : campi)
                testi.push_back(std::visit(Testo{}, campo));
            ScriveUnita(Aperto(nFile, false), testi);
        });
    Avvisa("Errore nella Sub FileInOut");
    return false;
}

bool FileInOutStringColl(std::string_view modo, std::int16_t nFile, std::vector<std::string>& coll) {
    if (Lettura(modo))
        return Esegue(true, [&] {
            coll.clear();
            coll = TestiDellaRiga(PrendeRiga(Aperto(nFile, true)));
        });
    if (Scrittura(modo))
        return Esegue(false, [&] {
            std::vector<std::string> testi;
            testi.reserve(coll.size());
            for (const std::string& testo : coll)
                testi.push_back(TraVirgolette(NascondeACapo(testo)));
            ScriveUnita(Aperto(nFile, false), testi);
        });
    Avvisa("Errore nella Sub FileInOutStringColl");
    return false;
}

bool FileInOutCoppia(std::string_view modo, std::int16_t nFile, std::string& a, std::string& b,
                     std::string_view predefinito) {
    std::vector<std::string> coll;
    if (Scrittura(modo))
        coll = {a, b};
    const bool riuscito = FileInOutStringColl(modo, nFile, coll);
    if (!riuscito || !Lettura(modo))
        return riuscito;
    if (!coll.empty())
        a = coll[0];
    b = coll.size() >= 2 ? coll[1] : std::string(predefinito);
    return true;
}

bool ScriveRiga(std::int16_t nFile, std::string_view riga) {
    return Esegue(false, [&] { Aperto(nFile, false).byte.append(AnsiDaUtf8(riga)).append(fineRiga); });
}

bool LeggeRiga(std::int16_t nFile, std::string& riga) {
    return Esegue(true, [&] { riga = Utf8DaAnsi(PrendeRiga(Aperto(nFile, true))); });
}

bool SeguonoVirgolette(std::int16_t nFile) {
    const auto posto = FileAperti().find(nFile);
    if (posto == FileAperti().end() || !posto->second.lettura)
        return false;
    return posto->second.byte.compare(posto->second.posto, 1, "\"") == 0;
}

std::string FiltroFileDialogo(std::string_view descrizione, std::string_view estensione) {
    const std::string d(descrizione);
    const std::string e(estensione);
    return "Tutti i Files (*.*)|*.*|Files " + d + " (*." + e + ")|*." + e;
}

fs::path PercorsoSenzaMaiuscole(const fs::path& cartella, std::string_view nome) {
    fs::path percorso = cartella / nome;
    std::error_code errore;
    if (fs::exists(percorso, errore))
        return percorso;
    std::vector<fs::path> trovati;
    for (fs::directory_iterator voce(cartella, errore), fine; !errore && voce != fine; voce.increment(errore))
        if (Maiuscole(voce->path().filename().string()) == Maiuscole(nome))
            trovati.push_back(voce->path());
    return trovati.empty() ? percorso : *std::min_element(trovati.begin(), trovati.end());
}

} // namespace sagomi
