#include "screens/GeneraleSchermi.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Numeri.h"
#include "frame/ui/AttesaQt.h"
#include "frame/ui/Guida.h"
#include "frame/ui/MessaggiQt.h"
#include "frame/ui/NavigaSchermi.h"
#include "screens/TavolaSchermi.h"

namespace sagomi {

void PreparaApplicazione() {
    QCoreApplication::setApplicationName(QStringLiteral("Sagomi"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(versioneProgramma));
    QApplication::setQuitOnLastWindowClosed(false);
    static QTranslator texts; // the toolkit's own dialogs speak Italian too
    if (texts.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts);
    CollegaMessaggiQt();
    CollegaAttesaQt();
    Guida::Installa();
}

void Main() {
    if (!ServerAttivo)
        InizializzaProgramma();
}

void InizializzaProgramma() {
    ChiusuraInCorso = false;
    SeparatoriOk = true;
    if (PathProgramma.empty())
        PathProgramma = QCoreApplication::applicationDirPath().toStdString();
    IniLeggeScrive("L");
    AvvioInCorso = true;
    ImpostaGamma();
    CaricaTavolaSchermi();
    NavigaSchermi::Unico().Passa(NavigaSchermi::Unico().Prendi(QStringLiteral("frmDoppioT")), nullptr);
    AvvioInCorso = false;
}

} // namespace sagomi
