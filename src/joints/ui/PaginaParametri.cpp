#include "joints/ui/PaginaParametri.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "fasteners/Bullone.h"
#include "frame/ui/Voce.h"
#include "joints/ui/PezziPagina.h"

namespace sagomi {

namespace {

/// A box of the tab; its limits stand in "LblCampo" + name.
struct VoceParametro {
    const char* nome;
    const char* testo;
    const char* aiuto;
};

constexpr VoceParametro voci[] = {
    {"Texttf", "tf", "Spessore della flangia"},
    {"Textbf", "bf", "Larghezza della flangia"},
    {"Textef", "ef", "Distanza orizzontale del foro dal bordo della flangia"},
    {"Textd2", "d1", "Distanza verticale della fila interna dal filo interno dell'ala tesa"},
    {"Textex", "ex", "Distanza verticale della fila esterna dal bordo della flangia"},
    {"Textdx", "d2", "Distanza verticale della fila esterna dal filo esterno dell'ala tesa"},
    {"Textu", "u", "Distanza del bordo inferiore della flangia dall'ala compressa"},
};

QComboBox* CreaDiametri() {
    auto* list = new QComboBox;
    list->setObjectName(QStringLiteral("CboDiametriBulloni"));
    list->setAccessibleName(QStringLiteral("d [mm]"));
    list->setToolTip(QStringLiteral("Diametro dei bulloni"));
    for (int i = 1; i <= TabellaBulloni().n(); ++i)
        list->addItem(QString::number(TabellaBulloni()[i].d));
    list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return list;
}

QLabel* CreaCampoAmmesso(const char* nome, const char* testo) {
    const QByteArray object = QByteArray("LblCampo") + nome;
    const QByteArray read = QByteArray("Valori ammessi di ") + testo;
    return CreaEsposto(object.constData(), read.constData());
}

} // namespace

PaginaParametri::PaginaParametri(QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "fraParametri", "Bulloni e flangia");
    QComboBox* bolts = CreaDiametri();
    grid->addWidget(CreaScritta("d [mm]", bolts), 0, 0, Qt::AlignRight);
    grid->addWidget(bolts, 0, 1);
    grid->addWidget(CreaCampoAmmesso("CboDiametriBulloni", "d"), 0, 2);
    int line = 1;
    for (const VoceParametro& v : voci) {
        const QByteArray caption = QByteArray(v.testo) + " [mm]";
        const QByteArray object = QByteArray("LblVoce") + v.nome;
        const Coppia pair = CreaCoppia({.etichetta = {object.constData(), caption.constData()},
                                        .nome = v.nome,
                                        .aiuto = v.aiuto,
                                        .letta = caption.constData()});
        grid->addWidget(pair.etichetta, line, 0);
        grid->addWidget(pair.campo, line, 1);
        grid->addWidget(CreaCampoAmmesso(v.nome, v.testo), line++, 2);
    }
    grid->setColumnStretch(2, 1);
    column->addWidget(room);
    column->addWidget(CreaEsposto("LblModo", "Chi assegna i parametri"));
    column->addStretch(1);
}

} // namespace sagomi
