#include "screens/frmGamma.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QRadioButton>

#include <array>
#include <string>

#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "ui_frmGamma.h"

namespace sagomi {

namespace {

/// What is wrong with a factor of the user's own, empty where nothing is; 0 counts as 1.
std::string ErroreFattore(double factor) {
    if (factor < 0)
        return "I coefficienti parziali di sicurezza non possono essere negativi";
    if (factor == 0 || limitiGamma.Comprende(factor))
        return {};
    return "I coefficienti parziali di sicurezza devono essere compresi fra " +
           TestoPiano(limitiGamma.minimo) + " e " + TestoPiano(limitiGamma.massimo);
}

} // namespace

frmGamma::frmGamma() : Schermo(QStringLiteral("frmGamma")), ui_(new Ui::frmGamma) {
    ui_->setupUi(this);
    PreparaContenuto();
    ui_->cmdOK_1->setAutoDefault(false); // Enter is OK's; the space bar still cancels
    optNormativa_ = Vettore<QRadioButton>(QStringLiteral("optNormativa"));
    txtGamma_ = Vettore<QLineEdit>(QStringLiteral("txtGamma"));
    auto* entries = new FiltroCampi(this, [this](QLineEdit* /*box*/) {
        Accetta();
        return true;
    });
    for (QLineEdit* box : txtGamma_)
        entries->Osserva(box);
    for (int i = 0; i < optNormativa_.size(); ++i)
        Collega(optNormativa_[i], &QRadioButton::clicked, this,
                [this, i] { Scelta(static_cast<std::int16_t>(i)); });
    Collega(ui_->cmdOK_0, &QPushButton::clicked, this, [this] { Accetta(); });
    Collega(ui_->cmdOK_1, &QPushButton::clicked, this, [this] { Annulla(); });
    DimensionaIniziale({});
}

frmGamma::~frmGamma() = default;

void frmGamma::Apre(Schermo& chiamante) {
    normativaPrima_ = Normativa;
    optNormativa_[Normativa]->setChecked(true);
    Riempie();
    NavigaSchermi::Unico().ApreDialogo(*this, chiamante);
    optNormativa_[Normativa]->setFocus();
}

void frmGamma::Riempie() {
    const std::array<Singolo, 3> factors{GammaM0, GammaM1, GammaM2};
    for (int i = 0; i < txtGamma_.size(); ++i) {
        txtGamma_[i]->setText(QString::fromStdString(TestoPiano(factors[static_cast<std::size_t>(i)])));
        static_cast<Casella*>(txtGamma_[i])->ImpostaRisultato(Normativa != normativaAltro);
    }
}

void frmGamma::Scelta(std::int16_t normativa) {
    Normativa = normativa;
    ImpostaGamma();
    Riempie();
}

void frmGamma::Accetta() {
    if (Normativa == normativaAltro) {
        for (QLineEdit* box : txtGamma_)
            if (const std::string error = ErroreFattore(NumeroIn(box)); !error.empty()) {
                Avvisa(error);
                FuocoSu(box);
                return;
            }
        GammaM0 = GammaM0Altro = NumeroIn(txtGamma_[0]);
        GammaM1 = GammaM1Altro = NumeroIn(txtGamma_[1]);
        GammaM2 = GammaM2Altro = NumeroIn(txtGamma_[2]);
        ImpostaGamma(); // a factor of 0 counts as 1
    }
    NavigaSchermi::Unico().Lascia(*this);
}

void frmGamma::Annulla() {
    // Only the code goes back: the factors of the option last clicked stay until they are set again.
    Normativa = normativaPrima_;
    NavigaSchermi::Unico().Lascia(*this);
}

void frmGamma::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        EventoProtetto([this] { Accetta(); });
    else
        Schermo::keyPressEvent(event);
}

void frmGamma::closeEvent(QCloseEvent* event) {
    if (ChiusuraInCorso) {
        event->accept();
        return;
    }
    event->ignore();
    EventoProtetto([this] { Annulla(); });
}

} // namespace sagomi
