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

QAction* Aggiunge(QWidget* menu, const char* name, const char* text, bool enabled = true) {
    auto* entry = new QAction(QString::fromUtf8(text), menu);
    entry->setObjectName(QString::fromLatin1(name));
    entry->setMenuRole(QAction::NoRole);
    entry->setEnabled(enabled);
    menu->addAction(entry);
    return entry;
}

QMenu* AggiungeMenu(QMenuBar* bar, const char* name, const char* title) {
    QMenu* menu = bar->addMenu(QString::fromUtf8(title));
    menu->setObjectName(QString::fromLatin1(name));
    return menu;
}

} // namespace

MenuSezione::MenuSezione(QWidget* parent) : QMenuBar(parent) {}

void MenuSezione::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    QMenu* file = AggiungeMenu(this, "mnuFile", "&File");
    Aggiunge(file, "mnuFileItem_0", "&Esci")->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    QMenu* families = AggiungeMenu(this, "mnuTipo", "&Tipo Sagomo");
    for (const VoceTipo& v : vociTipo)
        if (v.schermo != nome.toStdString())
            Aggiunge(families, v.nome, v.testo, false);
    QMenu* connections = AggiungeMenu(this, "mnuCollegamenti1", "&Collegamenti");
    Aggiunge(connections, "mnuCollegamenti_0", "&Bullonati", false);
    Aggiunge(connections, "mnuCollegamenti_1", "&Saldati", false);
    Aggiunge(connections, "MnuGiunto", "&Giunto Flangiato", false);
    Aggiunge(this, "mnuAcciaioCls", "&AcciaioCls", false);
    Aggiunge(this, "mnuScelta", "Sc&elta del sagomo", false)->setShortcut(Qt::Key_F4);
    Aggiunge(this, "NormativaMain", "Normativa: NTC", false);
    QMenu* help = AggiungeMenu(this, "mnuHelp", "&?");
    Aggiunge(help, "mnuHelp_0", "&Guida");
    Aggiunge(help, "mnuHelp_1", "&Informazioni", false);
}

} // namespace sagomi
