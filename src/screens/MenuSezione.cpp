#include "screens/MenuSezione.h"

#include <string_view>

namespace sagomi {

namespace {

/// An entry that opens a screen of sections.
struct VoceTipo {
    const char* nome;
    const char* testo;
    std::string_view schermo;
};

constexpr VoceTipo vociTipo[] = {
    {"mnuTipoT", "&Doppio T Laminati", "frmDoppioT"},
    {"mnuTipoSaldati", "&Saldati Simmetrici", "frmSaldati"},
    {"mnuTipoSaldatiAsimm", "Saldati &Asimmetrici", "frmSaldatiAsimm"},
    {"mnuTipoL", "Sagomi &L", "frmSagomiL"},
    {"mnuTipoU", "Sagomi &U", "frmSagomiU"},
};

QAction* Aggiungi(QWidget* menu, const char* name, const char* text, bool enabled = true) {
    auto* entry = new QAction(QString::fromUtf8(text), menu);
    entry->setObjectName(QString::fromLatin1(name));
    entry->setMenuRole(QAction::NoRole);
    entry->setEnabled(enabled);
    menu->addAction(entry);
    return entry;
}

QMenu* AggiungiMenu(QMenuBar* bar, const char* name, const char* title) {
    QMenu* menu = bar->addMenu(QString::fromUtf8(title));
    menu->setObjectName(QString::fromLatin1(name));
    return menu;
}

} // namespace

MenuSezione::MenuSezione(QWidget* parent) : QMenuBar(parent) {}

void MenuSezione::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    QMenu* file = AggiungiMenu(this, "mnuFile", "&File");
    Aggiungi(file, "mnuFileItem_0", "&Esci")->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    QMenu* families = AggiungiMenu(this, "mnuTipo", "&Tipo Sagomo");
    for (const VoceTipo& v : vociTipo)
        if (v.schermo != nome.toStdString())
            Aggiungi(families, v.nome, v.testo, false);
    QMenu* connections = AggiungiMenu(this, "mnuCollegamenti1", "&Collegamenti");
    Aggiungi(connections, "mnuCollegamenti_0", "&Bullonati", false);
    Aggiungi(connections, "mnuCollegamenti_1", "&Saldati", false);
    Aggiungi(connections, "MnuGiunto", "&Giunto Flangiato", false);
    Aggiungi(this, "mnuAcciaioCls", "&AcciaioCls", false);
    Aggiungi(this, "NormativaMain", "Normativa: NTC", false);
    QMenu* help = AggiungiMenu(this, "mnuHelp", "&?");
    Aggiungi(help, "mnuHelp_0", "&Guida");
    Aggiungi(help, "mnuHelp_1", "&Informazioni", false);
}

} // namespace sagomi
