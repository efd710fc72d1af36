// Saves the files that screens write, for the script beside; called as salva:
//   salva_schermi KIND FILE N [...]

#include <QApplication>

#include <functional>
#include <map>
#include <string>

#include "Salvataggi.h"
#include "drawing/Grafica.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/FileDialogo.h"
#include "report/Relazione.h"
#include "report/ui/PdfRelazione.h"

using namespace sagomi;

namespace {

using Percorso = std::filesystem::path;

Disegno Righe(int numero) {
    return {.nome = "righe", .PlottaInOggetto = [numero](Superficie*, std::string_view) {
                for (int i = 0; i < 50; ++i)
                    LineaPlt(0, i, numero, i);
            }};
}

/// As the user who takes the file in the save dialog.
bool SalvaDisegno(SceltaDispositivo scelta, const Percorso& file, int numero) {
    ImpostaSceltaFile([&file](QWidget*, std::string_view, const QString&, int, const QString&) {
        return QString::fromStdString(file.string());
    });
    return ScegliDispositivo(scelta, QStringLiteral("righe"), Righe(numero), QString(), nullptr);
}

bool SalvaPdf(const Percorso& file, int numero) { return SalvaDisegno(sceltaPdf, file, numero); }
bool SalvaPng(const Percorso& file, int numero) { return SalvaDisegno(sceltaPng, file, numero); }

bool SalvaRelazione(const Percorso& file, int numero) {
    ScrivePdfRelazione({.titolo = "Verifica di un sagomo", .oggetto = "IPE " + std::to_string(numero)}, file);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int none = 1;
    const QApplication application(none, argv);
    return prove::Salvataggi({{"pdf", SalvaPdf}, {"png", SalvaPng}, {"rel", SalvaRelazione}}, argc, argv);
}
