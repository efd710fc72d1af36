#include "composite/ui/frmAcciaioCls.h"

#include <QLabel>
#include <QLineEdit>

#include <array>
#include <string>
#include <utility>

#include "composite/DisegniTraveMista.h"
#include "composite/DisegnoVivo.h"
#include "drawing/Superficie.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Colori.h"
#include "frame/ui/Esito.h"
#include "frame/ui/Mostra.h"

// The check of the beam and its outputs on the screen.
namespace sagomi {

namespace {

constexpr int cifre = 4;
constexpr std::array<const char*, 7> uscite{"Txt_MaplRd", "Txt_Vl",  "Txt_MplRd", "Txt_NeutroPlastico",
                                            "Txt_yG",     "Txt_Jid", "Txt_JidJa"};
constexpr int tensioni = 4;

QString Cifre(double valore) { return QString::fromStdString(FormatoCifre(cifre, valore)); }

bool Plastica(const AcciaioCls& t) { return t.TipoVerifica < metodoNPositivo; }

/// A colour of the table that can be read on a ground.
QColor Leggibile(std::int16_t numero, const QColor& ground) {
    const ColoreRgb rgb = ColoreTabella(numero);
    const QColor plain(rgb.rosso, rgb.verde, rgb.blu);
    const QColor far = Scuro(ground) ? Qt::white : Qt::black;
    QColor ink = plain;
    for (float part = 0; part < 1 && Contrasto(ink, ground) < contrastoLeggibile; part += 0.05F)
        ink = Velo(plain, far, part);
    return ink;
}

} // namespace

void frmAcciaioCls::Calcola() {
    const MaterialiTrave before;
    DatiLeggeScrive("L");
    MetteInUso();
    SvuotaUscite();
    EsitoTrave esito;
    if (SezionePossibile(trave_))
        esito = VerificaTrave(trave_);
    else
        Avvisa("Errore! Controllare i dati");
    ScriveCorrette();
    nota_ = QString::fromStdString(esito.nota);
    if (!regole_.Applica() && esito.validi) {
        trave_.AzzeraRisultati();
        esito.validi = false;
        nota_ = tr("dati non ammessi");
    }
    calcolata_ = esito.accettati;
    MostraUscite(esito);
    Disegna();
    before.RimetteImpossibili();
    AlleFinestre();
}

/// Every output, and the results of the beam with them.
void frmAcciaioCls::SvuotaUscite() {
    calcolata_ = false;
    trave_.AzzeraRisultati();
    trave_.b0 = 0; // with them: it follows from the data of the deck
    nota_.clear();
    for (const char* name : uscite)
        SegnaValida(name, true);
    for (const char* name : uscite)
        Campo(name)->clear();
    for (QLineEdit* box : Vettore<QLineEdit>(QStringLiteral("Txt_Sigma")))
        box->clear();
    Campo("Txt_Ss")->clear();
    for (const char* name : {"lblEquilibrio", "lblMessaggioClasse", "lblNota"})
        findChild<QLabel*>(QString::fromLatin1(name))->clear();
}

/// A result that is not to be counted on is tinted.
void frmAcciaioCls::SegnaValida(const char* nome, bool valida) {
    auto* box = dynamic_cast<Casella*>(Campo(nome));
    box->ImpostaSegno(valida ? Casella::Nessuno : Casella::DaAggiornare);
    box->setAccessibleDescription(valida ? QString() : tr("non valido: solo verifica elastica"));
}

void frmAcciaioCls::MostraUscite(const EsitoTrave& esito) {
    auto* note = findChild<QLabel*>(QStringLiteral("lblNota"));
    note->setText(nota_);
    MostraGoverna(note, true);
    if (!esito.accettati)
        return;
    auto* section = findChild<QLabel*>(QStringLiteral("lblMessaggioClasse"));
    Mostra(section, MessaggioClasse(*trave_.Sezione));
    MostraGoverna(section, esito.soloElastica);
    if (!esito.validi)
        return;
    Campo("Txt_MaplRd")->setText(Cifre(Nmm_a_kNm(trave_.Sezione->MplyRd)));
    SegnaValida("Txt_MaplRd", !esito.soloElastica);
    Campo("Txt_Vl")->setText(Cifre(N_a_kN(trave_.Vl)));
    if (Plastica(trave_))
        MostraPlastiche(esito);
    else
        MostraElastiche();
}

void frmAcciaioCls::MostraPlastiche(const EsitoTrave& esito) {
    Campo("Txt_MplRd")->setText(Cifre(Nmm_a_kNm(trave_.MplRd)));
    Campo("Txt_NeutroPlastico")->setText(Cifre(trave_.yNeutroDaSopra()));
    Mostra(findChild<QLabel*>(QStringLiteral("lblEquilibrio")), TestoEquilibrio(esito));
    for (const char* name : {"Txt_MplRd", "Txt_NeutroPlastico", "Txt_Vl"})
        SegnaValida(name, !esito.soloElastica);
}

void frmAcciaioCls::MostraElastiche() {
    const std::array<double, tensioni> stresses{trave_.SigmaCls, trave_.SigmaArm, trave_.SigmaSup,
                                                trave_.SigmaInf};
    for (int i = 0; i < tensioni; ++i)
        MostraTensione(i, stresses[static_cast<std::size_t>(i)]);
    Campo("Txt_yG")->setText(Cifre(trave_.yNeutroDaSopra()));
    Campo("Txt_Jid")->setText(Cifre(mm4_a_cm4(trave_.Jid)));
    Campo("Txt_JidJa")->setText(Cifre(trave_.Jid / trave_.Sezione->Jy));
    Campo("Txt_Ss")->setText(Cifre(mm3_a_cm3(trave_.Ss)));
}

/// A stress in the colour of its sign.
void frmAcciaioCls::MostraTensione(int indice, double valore) {
    auto* box = findChild<QLineEdit*>(QStringLiteral("Txt_Sigma_%1").arg(indice));
    const std::int16_t colour = AcciaioCls::ColoreSigma(valore);
    box->setProperty("colore", colour);
    const QColor ink = Leggibile(colour, palette().color(QPalette::Window));
    box->setStyleSheet(QStringLiteral("color: ") + ink.name());
    box->setText(Cifre(valore));
}

void frmAcciaioCls::Disegna() {
    findChild<ImmagineDisegno*>(QStringLiteral("pctSezione"))->Mostra(DisegnoVivo(trave_));
    Disegno deck = DisegnoLamiera(trave_);
    deck.minima = {150, 60}; // on a small desktop; the command shows it larger
    findChild<ImmagineDisegno*>(QStringLiteral("pctLamiera"))->Mostra(std::move(deck));
}

} // namespace sagomi
