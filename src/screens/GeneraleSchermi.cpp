#include "screens/GeneraleSchermi.h"

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTranslator>

#include "frame/Cartelle.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Numeri.h"
#include "frame/ui/AttesaQt.h"
#include "frame/ui/Guida.h"
#include "frame/ui/IconaProgramma.h"
#include "frame/ui/MessaggiQt.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/StampaDiSchermo.h"
#include "frame/ui/StileMinuto.h"
#include "frame/ui/TestoGuida.h"
#include "screens/FigureGuida.h"
#include "screens/StampaSchermo.h"
#include "screens/StatoUtente.h"
#include "screens/TavolaSchermi.h"

namespace sagomi {

namespace {

bool Scrivibile(const std::filesystem::path& folder) {
    return QFileInfo(QString::fromStdString(folder.string())).isWritable();
}

/// The files lie beside the program, or where it was installed; settings that cannot lie there are the
/// user's.
void TrovaCartelle() {
    if (!PathProgramma.empty())
        return;
    const std::filesystem::path own = QCoreApplication::applicationDirPath().toStdString();
    PathProgramma = CartellaFile(own);
    if (!ServerAttivo)
        CartellaStato(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    if (PathProgramma != own || !Scrivibile(own))
        PathImpostazioni = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation).toStdString();
}

} // namespace

void PreparaApplicazione() {
    QCoreApplication::setApplicationName(QStringLiteral("Sagomi"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(versioneProgramma));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new StileMinuto);
    QApplication::setWindowIcon(IconaProgramma());
    static QTranslator texts; // the toolkit's own dialogs speak Italian too
    if (texts.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts);
    CollegaMessaggiQt();
    CollegaAttesaQt();
    Guida::Installa();
    TestoGuida::figura = FiguraGuida;
    ImpostaStampa(StampaSchermo);
}

void Main() {
    if (!ServerAttivo)
        InizializzaProgramma();
}

void InizializzaProgramma() {
    ChiusuraInCorso = false;
    SeparatoriOk = true;
    TrovaCartelle();
    IniLeggeScrive("L");
    LeggeStatoComune();
    AvvioInCorso = true;
    const auto started = qScopeGuard([] { AvvioInCorso = false; });
    ImpostaGamma();
    CaricaTavolaSchermi();
    NavigaSchermi::Unico().Passa(NavigaSchermi::Unico().Prendi(QStringLiteral("frmDoppioT")), nullptr);
}

} // namespace sagomi
