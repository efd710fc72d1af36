#include "choice/ui/PrendeSagomo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>
#include <utility>
#include <variant>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/NavigaSchermi.h"
#include "screens/ConDiagramma.h"
#include "screens/SchermoSezione.h"
#include "sections/PressoFlessione.h"

namespace sagomi {

namespace {

void Scrive(QLineEdit* box, double valore) {
    if (box != nullptr && NumeroIn(box) != valore)
        box->setText(QString::fromStdString(TestoPiano(valore)));
}

void ImpostaAcciaio(SchermoSezione& s, const EntrateAcciaio& acciaio) {
    if (s.ComboTipoAcciaio->currentIndex() != acciaio.indice) {
        s.ComboTipoAcciaio->setCurrentIndex(acciaio.indice);
        s.AcciaioScelto();
    }
    Scrive(s.Txt_fy, acciaio.fy);
    Scrive(s.Txt_fu, acciaio.fu);
}

void ImpostaEntrate(SchermoSezione& s, const Richiesta& r) {
    const double lengths[] = {r.L0y, r.L0z, r.L0v};
    for (qsizetype i = 0; i < s.Txt_L0.size() && i < 3; ++i)
        Scrive(s.Txt_L0[i], mm_a_m(lengths[i]));
    Scrive(s.TxtNsd, N_a_kN(r.NSd));
}

void ImpostaDoppi(SchermoSezione& s, const Richiesta& r) {
    auto* pairs = s.findChild<QCheckBox*>(QStringLiteral("chkDoppi"));
    auto* frame = s.findChild<QWidget*>(QStringLiteral("fraDoppi"));
    if (pairs == nullptr || frame == nullptr)
        return;
    Scrive(s.findChild<QLineEdit*>(QStringLiteral("txtDoppi")), r.dDoppi);
    if (auto* sides = frame->findChild<QCheckBox*>())
        sides->setChecked(r.accostati);
    pairs->setChecked(r.doppi);
}

/// The user's own sheet, or the ticks of the families.
void SpuntaFamiglia(SchermoSezione& s, const SagomoInGara& sagomo) {
    if (auto* own = s.findChild<QCheckBox*>(QStringLiteral("ChkTipoUtente")))
        own->setChecked(sagomo.utente);
    if (sagomo.utente)
        return;
    const QString family = QString::fromStdString(sagomo.famiglia);
    const auto box = std::ranges::find(s.ChkTipo, family, &QCheckBox::text);
    if (box == s.ChkTipo.end() || (*box)->isChecked())
        return;
    (*box)->setChecked(true);
}

/// The row of that name and weight: families may share a name.
int CercaRiga(const Lettore& righe, const SagomoInGara& sagomo) {
    constexpr int campoPeso = 1;
    for (int row = 0; row < righe.Righe(); ++row)
        if (TestoDi(righe.Cella(row, 0)) == sagomo.Designazione()) {
            const auto* weight = std::get_if<double>(&righe.Cella(row, campoPeso));
            if (weight != nullptr && *weight == sagomo.g)
                return row;
        }
    return -1;
}

bool PrendeDiagrammi(const SezioneQualsiasi& sezione) {
    return std::visit([]<typename S>(const S&) { return ConDiagrammi<S>; }, sezione);
}

ValoriScelti ValoriDi(const Richiesta& r) {
    static std::uint64_t prese = 0;
    const EffettiDiagramma y = EffettiDelDiagramma(r.y, r.tipoDiagramma, r.pict);
    const EffettiDiagramma z = EffettiDelDiagramma(r.z, r.tipoDiagramma, r.pict);
    return {.Mysd = y.M,
            .Mzsd = z.M,
            .LLT = r.LLT       ? r.LLT
                   : r.L0z > 0 ? std::optional(r.L0z)
                               : std::nullopt,
            .k = r.k,
            .Kw = r.Kw,
            .C1 = r.C1.value_or(y.C1),
            .c2 = r.c2,
            .c3 = r.c3,
            .za = r.za,
            .C1Proprio = r.C1.has_value(),
            .y = r.y,
            .z = r.z,
            .pict = r.pict,
            .presa = ++prese};
}

} // namespace

SchermoSezione* PrendeSagomo(const SagomoInGara& sagomo, const Richiesta& richiesta,
                             const EntrateAcciaio& acciaio) {
    auto& screens = NavigaSchermi::Unico();
    auto& s = screens.Prende<SchermoSezione>(QString::fromStdString(sagomo.schermo));
    const bool waited = std::exchange(s.CaricaForm, true); // its activation ends that, and computes
    SpuntaFamiglia(s, sagomo);
    int row = CercaRiga(s.Data1->Recordset(), sagomo);
    if (row < 0 && CambioFamiglia(s, s.TabellaOrdine))
        row = CercaRiga(s.Data1->Recordset(), sagomo);
    if (row < 0) {
        s.CaricaForm = waited;
        Avvisa("Il sagomo " + sagomo.Designazione() + " non si trova più nella tabella di " +
               sagomo.famiglia + ".");
        return nullptr;
    }
    if (PrendeDiagrammi(sagomo.sezione))
        if (auto* member = dynamic_cast<ConDiagramma*>(&screens.Prende(QStringLiteral("FrmPresFless"))))
            member->ImpostaDiagramma(richiesta.y, richiesta.z, richiesta.pict);
    ImpostaAcciaio(s, acciaio);
    ImpostaEntrate(s, richiesta);
    ImpostaDoppi(s, richiesta);
    s.Data1->MoveTo(row);
    s.valoriScelti = ValoriDi(richiesta);
    return &s;
}

} // namespace sagomi
