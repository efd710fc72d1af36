#include "drawing/ui/ScegliDispositivo.h"

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>

#include "drawing/Cad.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "drawing/ui/SuperficieImmagine.h"
#include "drawing/ui/SuperficieStampante.h"
#include "frame/FileAtomico.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/MotivoFile.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

bool SceglieColDialogo(QPrinter& printer, QWidget* parent) {
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("DialogoStampa"));
    return dialog.exec() == QDialog::Accepted;
}

SceltaStampante& Scelta() {
    static SceltaStampante chosen = SceglieColDialogo;
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

void AvvisaNonScrivibile(const QString& file) { Avvisa(AvvisoNonScritto(file.toStdString())); }

void AvvisaStampante() {
    Avvisa("Stampante non presente o non disponibile.\r\n"
           "La stampante potrebbe essere spenta.",
           {}, Icona::Avviso);
}

/// Puts a device in force while it lives.
class Uscita {
public:
    explicit Uscita(std::string_view device, Superficie* target = nullptr) {
        Dispositivo = device;
        OggettoGrafico = target;
        ColorePenna = pennaInchiostro;
    }

private:
    StatoUscita before_;
};

/// Draws the pages of a printer that is there, or of its file.
/// @param nonIniziato  says what is wrong where it cannot begin
bool Disegna(QPrinter& printer, const PaginaStampata& draw, const std::function<void()>& nonIniziato) {
    LavoroDiStampa job(printer);
    if (!job.Iniziato()) {
        nonIniziato();
        return false;
    }
    const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
    return Protetto("Errore", [&] {
        job.Pagine(copies, [&](Superficie& page, int number) {
            const Uscita output(dispositivoStampante, &page);
            return draw(page, number);
        });
    });
}

/// What stands in a document that is whole, else nothing: the toolkit does not tell a disk that was full.
std::string PdfIntero(const QString& file) {
    QFile document(file);
    const QByteArray bytes = document.open(QIODevice::ReadOnly) ? document.readAll() : QByteArray();
    return bytes.trimmed().endsWith("%%EOF") ? bytes.toStdString() : std::string();
}

/// Draws the pages of a document, which takes the place of its file when it is whole.
bool StampaPdf(QPrinter& printer, const PaginaStampata& draw) {
    const QString file = printer.outputFileName();
    const auto notWritable = [&file] { AvvisaNonScrivibile(file); };
    const QTemporaryDir aside;
    const QString document = aside.filePath(QStringLiteral("documento.pdf"));
    printer.setOutputFileName(document);
    const auto back = qScopeGuard([&] { printer.setOutputFileName(file); });
    if (!Disegna(printer, draw, notWritable))
        return false;
    const std::string bytes = PdfIntero(document);
    const bool written = !bytes.empty() && ScriveAtomico(file.toStdString(), bytes);
    if (!written)
        notWritable();
    return written;
}

/// Draws the pages of a printer that has been chosen.
bool StampaTutte(QPrinter& printer, const PaginaStampata& draw) {
    const bool onFile = !printer.outputFileName().isEmpty();
    if (onFile && printer.outputFormat() == QPrinter::PdfFormat)
        return StampaPdf(printer, draw);
    const bool missing = !onFile && printer.outputFormat() == QPrinter::NativeFormat &&
                         (!printer.isValid() || QPrinterInfo::availablePrinterNames().isEmpty());
    if (missing) {
        AvvisaStampante();
        return false;
    }
    return Disegna(printer, draw,
                   [&] { onFile ? AvvisaNonScrivibile(printer.outputFileName()) : AvvisaStampante(); });
}

PaginaStampata PaginaDi(const Disegno& drawing, const QString& maschera) {
    return [&drawing, screen = maschera.toStdString()](Superficie& page, int) {
        drawing.PlottaInOggetto(&page, screen);
        return false;
    };
}

/// The file that the user saves to, with its extension; empty when he gives up.
QString FileScelto(const QString& name, const QString& extension, std::string_view filter, int index,
                   QWidget* parent) {
    QString file = SceglieFile(parent, "S", QString::fromUtf8(filter.data()), index,
                               NomeFile(name) + QLatin1Char('.') + extension);
    TieneCartella(file);
    if (!file.isEmpty() && QFileInfo(file).suffix().isEmpty())
        file += QLatin1Char('.') + extension;
    return file;
}

QString EsitoFile(const QString& file) {
    return QString::fromUtf8(testoFile.data()) + QStringLiteral(": ") + file;
}

bool ScriveDxf(const QString& name, const Disegno& drawing, const QString& maschera, QWidget* parent,
               QString& outcome) {
    const QString file = FileScelto(name, QStringLiteral("dxf"), filtroDxf, indiceFiltroDxf, parent);
    if (file.isEmpty())
        return false;
    std::int16_t number = 0;
    if (!DxfApre(file.toStdString(), number)) {
        AvvisaNonScrivibile(file);
        return false;
    }
    try {
        const Uscita output(dispositivoDxf);
        drawing.PlottaInOggetto(nullptr, maschera.toStdString());
    } catch (...) {
        DxfAbbandona(); // a file of that name from before is kept
        throw;
    }
    if (!DxfChiude())
        return false;
    outcome = EsitoFile(file);
    return true;
}

std::string InSvg(const Disegno& drawing, const QString& maschera) {
    SuperficieSvg svg;
    const Uscita output(dispositivoSvg, &svg);
    drawing.PlottaInOggetto(&svg, maschera.toStdString());
    return svg.Documento();
}

bool ScriveSvg(const QString& name, const Disegno& drawing, const QString& maschera, QWidget* parent,
               QString& outcome) {
    constexpr std::string_view filtro = "All Files (*.*)|*.*|Disegni SVG (*.svg)|*.svg";
    const QString file = FileScelto(name, QStringLiteral("svg"), filtro, 2, parent);
    if (file.isEmpty())
        return false;
    if (!ScriveAtomico(file.toStdString(), InSvg(drawing, maschera))) {
        AvvisaNonScrivibile(file);
        return false;
    }
    outcome = EsitoFile(file);
    return true;
}

bool ScrivePdf(const QString& name, const Disegno& drawing, const QString& maschera, QWidget* parent,
               QString& outcome) {
    constexpr std::string_view filtro = "All Files (*.*)|*.*|Documenti PDF (*.pdf)|*.pdf";
    const QString file = FileScelto(name, QStringLiteral("pdf"), filtro, 2, parent);
    if (file.isEmpty())
        return false;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setDocName(name);
    if (!StampaSu(printer, drawing, maschera))
        return false;
    outcome = EsitoFile(file);
    return true;
}

bool ScrivePng(const QString& name, const Disegno& drawing, const QString& maschera, QWidget* parent,
               QString& outcome) {
    constexpr std::string_view filtro = "All Files (*.*)|*.*|Immagini PNG (*.png)|*.png";
    const QString file = FileScelto(name, QStringLiteral("png"), filtro, 2, parent);
    if (file.isEmpty())
        return false;
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    ImmagineDi(drawing, maschera).save(&picture, "PNG");
    if (!ScriveAtomico(file.toStdString(), picture.data().toStdString())) {
        AvvisaNonScrivibile(file);
        return false;
    }
    outcome = EsitoFile(file);
    return true;
}

bool Copia(const Disegno& drawing, const QString& maschera, QString& outcome) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(InSvg(drawing, maschera)));
    data->setImageData(ImmagineDi(drawing, maschera));
    QGuiApplication::clipboard()->setMimeData(data.release()); // the clipboard's own from here on
    outcome = QStringLiteral("Appunti");
    return true;
}

bool DisegnaNelCad(const Disegno& drawing, const QString& maschera, QString& outcome) {
    TieneCartella();
    if (!CadApre())
        return false;
    {
        const Uscita output(dispositivoDwg);
        drawing.PlottaInOggetto(nullptr, maschera.toStdString());
    }
    CadZoomExtents();
    outcome = QString::fromUtf8(dispositivoDwg.data());
    return true;
}

} // namespace

void ImpostaSceltaStampante(SceltaStampante scelta) {
    Scelta() = scelta ? std::move(scelta) : SceglieColDialogo;
}

bool StampaSu(QPrinter& stampante, const Disegno& disegno, const QString& maschera) {
    return StampaTutte(stampante, PaginaDi(disegno, maschera));
}

bool StampaSu(QPrinter& stampante, const PaginaStampata& pagina) { return StampaTutte(stampante, pagina); }

bool StampaPagine(const QString& nome, const PaginaStampata& pagina, QWidget* sopra, QString* esito) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(nome);
    const bool accepted = Scelta()(printer, sopra);
    TieneCartella(printer.outputFileName());
    if (!accepted || !StampaTutte(printer, pagina))
        return false;
    if (esito != nullptr)
        *esito = QString::fromUtf8(dispositivoStampante.data()) + QStringLiteral(": ") +
                 (printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName());
    return true;
}

bool ScegliDispositivo(int scelta, const QString& nome, const Disegno& disegno, const QString& maschera,
                       QWidget* sopra, QString* esito) {
    if (!disegno.PlottaInOggetto)
        return false;
    QString outcome;
    bool done = false;
    if (scelta == sceltaStampante)
        done = StampaPagine(nome, PaginaDi(disegno, maschera), sopra, &outcome);
    else if (scelta == sceltaDxf)
        done = ScriveDxf(nome, disegno, maschera, sopra, outcome);
    else if (scelta == sceltaCad)
        done = DisegnaNelCad(disegno, maschera, outcome);
    else if (scelta == sceltaSvg)
        done = ScriveSvg(nome, disegno, maschera, sopra, outcome);
    else if (scelta == sceltaPdf)
        done = ScrivePdf(nome, disegno, maschera, sopra, outcome);
    else if (scelta == sceltaPng)
        done = ScrivePng(nome, disegno, maschera, sopra, outcome);
    else if (scelta == sceltaAppunti)
        done = Copia(disegno, maschera, outcome);
    if (esito != nullptr)
        *esito = outcome;
    return done;
}

} // namespace sagomi
