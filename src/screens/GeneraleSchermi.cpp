#include "screens/GeneraleSchermi.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTranslator>

#include <cstdio>
#include <stdexcept>
#include <string>

#include "catalogue/CartellaLavoro.h"
#include "frame/Cartelle.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/RecentiDesktop.h"
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

/// A box, and a line for who has started the program from a terminal; a client waits for no box.
void Racconta(const std::string& testo) {
    std::fputs(("sagomi: " + testo + '\n').c_str(), stderr);
    if (!ServerAttivo)
        Avvisa(testo);
}

} // namespace

bool TrovaCartelle(const std::optional<std::filesystem::path>& scelta) {
    try {
        const CartellaLavoro cartelle =
            ApreCartellaLavoro(QCoreApplication::applicationDirPath().toStdString(), scelta);
        PathProgramma = cartelle.lavoro;
        PathInstallazione = cartelle.installazione;
        CartellaRecenti(CartellaDatiUtente());
        if (!ServerAttivo)
            CartellaStato(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
        if (!cartelle.avviso.empty())
            Racconta(cartelle.avviso);
        return true;
    } catch (const std::runtime_error& e) {
        Racconta(e.what());
        return false;
    }
}

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
    if (PathProgramma.empty())
        TrovaCartelle();
    IniLeggeScrive("L");
    LeggeStatoComune();
    AvvioInCorso = true;
    const auto started = qScopeGuard([] { AvvioInCorso = false; });
    ImpostaGamma();
    CaricaTavolaSchermi();
    NavigaSchermi::Unico().Passa(NavigaSchermi::Unico().Prende(QStringLiteral("frmDoppioT")), nullptr);
}

} // namespace sagomi
