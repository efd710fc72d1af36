#include "drawing/ui/ScegliDispositivo.h"

#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>

#include <algorithm>
#include <filesystem>

#include "drawing/Cad.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "drawing/ui/SuperficieStampante.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

bool ScegliColDialogo(QPrinter& printer, QWidget* parent) {
    QPrintDialog dialog(&printer, parent);
    return dialog.exec() == QDialog::Accepted;
}

SceltaStampante& Scelta() {
    static SceltaStampante chosen = ScegliColDialogo;
    return chosen;
}

/// The folder that the user is in stays the working one.
void TieneCartella(const QString& file = {}) {
    if (!file.isEmpty())
        PathLavoro = QFileInfo(file).absolutePath().toStdString();
    else if (PathLavoro.empty())
        PathLavoro = std::filesystem::current_path();
}

/// A name without the characters that some system refuses in a file.
QString NomeFile(QString name) {
    static const QRegularExpression refused(QStringLiteral("[\\\\/:*?\"<>|]"));
    return name.replace(refused, QStringLiteral("-"));
}

void AvvisaNonScrivibile(const QString& file) {
    Avvisa("Non è possibile scrivere il file " + file.toStdString());
}

void AvvisaStampante() {
    Avvisa("Stampante non presente o non disponibile.\r\n"
           "La stampante potrebbe essere spenta.",
           {}, Icona::Avviso);
}

bool Stampa(const QString& name, const Disegno& drawing, const QString& maschera, QWidget* parent,
            QString& outcome) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(name);
    const bool accepted = Scelta()(printer, parent);
    TieneCartella(printer.outputFileName());
    if (!accepted || !StampaSu(printer, drawing, maschera))
        return false;
    outcome = QString::fromUtf8(dispositivoStampante.data()) + QStringLiteral(": ") +
              (printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName());
    return true;
}

/// Puts a device without a target in force while it lives.
class UscitaSenzaBersaglio {
public:
    explicit UscitaSenzaBersaglio(std::string_view device) {
        Dispositivo = device;
        OggettoGrafico = nullptr;
        ColorePenna = pennaInchiostro;
    }

private:
    StatoUscita before_;
};

bool ScriveDxf(const QString& name, const Disegno& drawing, const QString& maschera, QWidget* parent,
               QString& outcome) {
    QString file = ScegliFile(parent, "S", QString::fromUtf8(filtroDxf.data()), indiceFiltroDxf,
                              NomeFile(name) + QStringLiteral(".dxf"));
    TieneCartella(file);
    if (file.isEmpty())
        return false;
    if (QFileInfo(file).suffix().isEmpty())
        file += QStringLiteral(".dxf");
    std::int16_t number = 0;
    if (!DxfApre(file.toStdString(), number)) {
        AvvisaNonScrivibile(file);
        return false;
    }
    try {
        const UscitaSenzaBersaglio output(dispositivoDxf);
        drawing.PlottaInOggetto(nullptr, maschera.toStdString());
    } catch (...) {
        DxfAbbandona(); // a file of that name from before is kept
        throw;
    }
    if (!DxfChiude())
        return false;
    outcome = QString::fromUtf8(testoFile.data()) + QStringLiteral(": ") + file;
    return true;
}

bool DisegnaNelCad(const Disegno& drawing, const QString& maschera, QString& outcome) {
    TieneCartella();
    if (!CadApre())
        return false;
    {
        const UscitaSenzaBersaglio output(dispositivoDwg);
        drawing.PlottaInOggetto(nullptr, maschera.toStdString());
    }
    CadZoomExtents();
    outcome = QString::fromUtf8(dispositivoDwg.data());
    return true;
}

void DisegnaPagina(QPainter& painter, const Disegno& drawing, const std::string& maschera) {
    SuperficieStampante page(painter);
    Dispositivo = dispositivoStampante;
    ColorePenna = pennaInchiostro;
    OggettoGrafico = &page;
    drawing.PlottaInOggetto(&page, maschera);
}

} // namespace

void ImpostaSceltaStampante(SceltaStampante scelta) {
    Scelta() = scelta ? std::move(scelta) : ScegliColDialogo;
}

bool StampaSu(QPrinter& stampante, const Disegno& disegno, const QString& maschera) {
    const bool onFile = !stampante.outputFileName().isEmpty();
    const bool missing = !onFile && stampante.outputFormat() == QPrinter::NativeFormat &&
                         (!stampante.isValid() || QPrinterInfo::availablePrinterNames().isEmpty());
    QPainter painter;
    if (missing || !painter.begin(&stampante)) {
        onFile ? AvvisaNonScrivibile(stampante.outputFileName()) : AvvisaStampante();
        return false;
    }
    const StatoUscita before;
    const int copies = stampante.supportsMultipleCopies() ? 1 : std::max(1, stampante.copyCount());
    return Protetto("Errore", [&] {
        for (int i = 0; i < copies; ++i) {
            if (i > 0)
                stampante.newPage();
            DisegnaPagina(painter, disegno, maschera.toStdString());
        }
    });
}

bool ScegliDispositivo(int scelta, const QString& nome, const Disegno& disegno, const QString& maschera,
                       QWidget* sopra, QString* esito) {
    if (!disegno.PlottaInOggetto)
        return false;
    QString outcome;
    bool done = false;
    if (scelta == sceltaStampante)
        done = Stampa(nome, disegno, maschera, sopra, outcome);
    else if (scelta == sceltaDxf)
        done = ScriveDxf(nome, disegno, maschera, sopra, outcome);
    else if (scelta == sceltaCad)
        done = DisegnaNelCad(disegno, maschera, outcome);
    if (esito != nullptr)
        *esito = outcome;
    return done;
}

} // namespace sagomi
