// crea_figure FOLDER DATA: the pictures of the manual. Drawings of the help as SVG into FOLDER/figure,
// pictures of the screens as PNG into FOLDER/schermi: while the tutorial of DATA/Sagomi.hlp is worked
// through, then one of each screen, as the tutorial has left it. DATA is the folder with workbooks and help.
// What the tutorial says and the program does not ends it with an error.

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <cstdio>
#include <string>

#include "EsecutoreTutorial.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/GeneraleSagomi.h"
#include "frame/ui/IndiceGuida.h"
#include "frame/ui/NavigaSchermi.h"
#include "screens/DisegniGuida.h"
#include "screens/GeneraleSchermi.h"

namespace {

using namespace sagomi;

std::string InSvg(const Disegno& disegno) {
    const StatoUscita prima;
    SuperficieSvg svg;
    Dispositivo = dispositivoSvg;
    ColorePenna = pennaInchiostro;
    OggettoGrafico = &svg;
    disegno.PlottaInOggetto(&svg, "FinestraGuida");
    return svg.Documento();
}

void ScriveDisegni(const QString& folder) {
    for (const std::string_view name : NomiDisegniGuida()) {
        const std::string text = InSvg(DisegnoGuida(name));
        QFile file(folder + u'/' + QString::fromUtf8(name.data(), qsizetype(name.size())) +
                   QStringLiteral(".svg"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), qint64(text.size())) < 0)
            qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
}

void Fotografa(const QString& folder, const QString& name, QWidget& screen) {
    QCoreApplication::processEvents();
    if (!screen.grab().save(folder + u'/' + name + QStringLiteral(".png")))
        qFatal("%s cannot be written", qPrintable(name));
}

/// The screens that open from another main screen than the first.
QString Padre(const QString& name) {
    if (name == u"FrmClasseSagomiL" || name == u"FrmInstabSagomiL")
        return QStringLiteral("frmSagomiL");
    if (name == u"FrmInstabSagomiU")
        return QStringLiteral("frmSagomiU");
    if (name == u"FrmInfoGiunti" || name == u"FrmRisultatiIntermedi")
        return QStringLiteral("frmGiunti");
    if (name == u"frmConnettori" || name == u"frmSuggerimento")
        return QStringLiteral("frmAcciaioCls");
    if (name == u"FrmConfronto")
        return QStringLiteral("FrmScelta");
    return QStringLiteral("frmDoppioT");
}

void FotografaTutte(const QString& folder) {
    auto& n = NavigaSchermi::Unico();
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        Schermo& first = n.Prende(QStringLiteral("frmDoppioT"));
        n.Passa(first, nullptr);
        Schermo& from = n.Prende(Padre(voce.nome));
        if (&from != &first)
            n.Apre(from.objectName(), first);
        if (voce.nome == u"FrmConfronto") // filled by the choice
            from.findChild<QAbstractButton*>(QStringLiteral("CmdConfronta"))->click();
        else if (n.Trova(voce.nome) != &from)
            n.Apre(voce.nome, from);
        Fotografa(folder, voce.nome, n.Prende(voce.nome));
        if (n.Trova(voce.nome) != &first)
            n.Prende(voce.nome).hide();
    }
}

/// The desktop of the offscreen platform, 1366 x 768 at twice the density; the file is kept by the caller.
void ApreDesktop(QTemporaryFile& file) {
    if (!file.open())
        qFatal("no desktop");
    file.write(R"({"screens":[{"name":"manuale","x":0,"y":0,"width":2732,"height":1536,)"
               R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    file.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
    qputenv("QT_SCALE_FACTOR", "2");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        qFatal("Use: crea_figure FOLDER DATA");
    QTemporaryFile desktop;
    ApreDesktop(desktop);
    qputenv("LC_ALL", "it_IT.UTF-8");
    const QApplication application(argc, argv);
    PreparaApplicazione();
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const char* sub : {"figure", "schermi"})
        folder.mkpath(QLatin1String(sub));
    const QTemporaryDir work; // the tutorial writes files
    for (const char* file :
         {"Sagomi.xls", "SagomiUtente.xls", "Sagomi.hlp", "GiuntoFlangiato.hlp", "FormuleGiunto.rtf"})
        QFile::copy(QDir(QString::fromLocal8Bit(argv[2])).filePath(QLatin1String(file)),
                    work.filePath(QLatin1String(file)));
    PathProgramma = work.path().toStdString();

    ScriveDisegni(folder.filePath(QStringLiteral("figure")));
    const QString pictures = folder.filePath(QStringLiteral("schermi"));
    EsecutoreTutorial tutorial(work.path());
    InizializzaProgramma();
    tutorial.foto = [&](const QString& name, QWidget& screen) { Fotografa(pictures, name, screen); };
    tutorial.Esegue(PassiTutorial(LeggeGuida(QStringLiteral("Sagomi.hlp"))));
    FotografaTutte(pictures);
    for (const QString& error : tutorial.Errori())
        std::fprintf(stderr, "Sagomi.hlp:%s\n", qPrintable(error));
    std::fflush(stderr);
    NavigaSchermi::Unico().ScaricaTutti();
    return tutorial.Errori().isEmpty() ? 0 : 1;
}
