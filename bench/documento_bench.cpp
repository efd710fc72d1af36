// The kinds of files that Qt reads or writes: the help, and a calculation report as PDF.

#include <QApplication>

#include <filesystem>

#include "GenereFile.h"
#include "frame/GeneraleSagomi.h"
#include "frame/ui/IndiceGuida.h"
#include "joints/NodoDisegnato.h"
#include "report/RelazioneNodo.h"
#include "report/ui/PdfRelazione.h"

namespace fs = std::filesystem;
using namespace sagomi;
using misure::GenereFile;

namespace {

QList<ArgomentoGuida> Argomenti(const fs::path& file) {
    const QString nome = QString::fromStdString(file.filename().string());
    return ArgomentiGuida(nome, LeggeGuida(nome));
}

/// The help as F1 takes it: its text, and the list of its topics.
GenereFile Aiuto() {
    const auto legge = [](const fs::path& file) { return !Argomenti(file).isEmpty(); };
    return {"help", fs::path(SAGOMI_DATA) / "Sagomi.hlp", legge, {}};
}

/// The same with the first word of a search, for which the plain texts of the topics are made.
GenereFile AiutoCercato() {
    const auto cerca = [](const fs::path& file) {
        return !CercaGuida(Argomenti(file), QStringLiteral("rigidezza")).isEmpty();
    };
    return {"help_searched", fs::path(SAGOMI_DATA) / "Sagomi.hlp", cerca, {}};
}

GenereFile Pdf() {
    return {"pdf", {}, {}, [](const fs::path& file) {
                static const Relazione relazione = RelazioneNodo(prove::NodoDisegnato(nodoT, 2, "Si"), "");
                ScrivePdfRelazione(relazione, file);
                return true;
            }};
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const misure::CartellaMisure cartella;
    ImpostaGamma();
    PathInstallazione = SAGOMI_DATA;
    for (const GenereFile& genere : {Aiuto(), AiutoCercato(), Pdf()})
        Registra(genere, cartella.percorso);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
