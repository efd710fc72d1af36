#include "screens/FrmClasseDoppioTU.h"

#include <array>

#include "frame/Messaggi.h"
#include "frame/Unita.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "screens/PlottaSezioneCorrente.h"
#include "sections/Eurocod3.h"
#include "sections/LunghezzePerse.h"
#include "sections/SezioneCorrente.h"
#include "ui_FrmClasseDoppioTU.h"

namespace sagomi {

namespace {

constexpr int cifre = 4;

constexpr int alaInferiore = 2; ///< row of the lower flange

constexpr int decimali = 2; ///< of lengths and slendernesses

Voce Misura(const char* simbolo, const char* letta, const char* nome, int caratteri, const char* aiuto) {
    return {{"", simbolo}, nome, caratteri, aiuto, letta, Genere::valore, decimali};
}

const std::vector<Piatto>& Piatti() {
    static const std::vector<Piatto> plates = {
        {"Anima", "dell'anima", "lblAnima",
         Misura("d", "d", "Lbl_d", 8, "Altezza libera dell'anima fra i raccordi [mm]"),
         Misura("t{w}", "tw", "Lbl_tw", 6, "Spessore dell'anima [mm]"),
         Misura("d/t{w}/eps", "d/tw/eps", "Lbl_SnellWeb", 7,
                "Snellezza dell'anima divisa per epsilon, EC3 tabella 5.2"),
         "Lbl_LimiteWeb", true, "Lbl_ClasseWebF", "Lbl_ClasseWebC"},
        {"Ala", "dell'ala", "lblAla", Misura("c", "c", "Lbl_c", 8, "Sporgenza dell'ala dal raccordo [mm]"),
         Misura("t{f}", "tf", "Lbl_tf", 6, "Spessore dell'ala [mm]"),
         Misura("c/t{f}/eps", "c/tf/eps", "Lbl_SnellAla", 7,
                "Snellezza dell'ala divisa per epsilon, EC3 tabella 5.2"),
         "Lbl_LimiteAla", true, "Lbl_ClasseAlaF", "Lbl_ClasseAlaC"},
        {"Ala inferiore", "dell'ala inferiore", "lblAlaInf",
         Misura("c inf", "c inf", "Lbl_cInf", 8, "Sporgenza dell'ala inferiore dal raccordo [mm]"),
         Misura("t{f} inf", "tf inf", "Lbl_tfInf", 6, "Spessore dell'ala inferiore [mm]"),
         Misura("c/t{f}/eps inf", "c/tf/eps inf", "Lbl_SnellAlaInf", 7,
                "Snellezza dell'ala inferiore divisa per epsilon, EC3 tabella 5.2"),
         "Lbl_LimiteAlaInf", false, "Lbl_ClasseAlaInfF", "Lbl_ClasseAlaInfC"},
    };
    return plates;
}

const std::vector<Voce>& Efficaci() {
    const auto value = [](const char* caption, const char* name, const char* help, const char* read) {
        return Voce{{"", caption}, name, 9, help, read, Genere::valore};
    };
    static const std::vector<Voce> values = {
        value("A{eff} [mm^{2}]", "Lbl_Aeff", "Area efficace in compressione, EC3 6.2.4", "Aeff [mm2]"),
        value("anima persa N [mm]", "Lbl_PersaWebC",
              "Altezza persa dall'anima in compressione, ENV 1993-1-1 5.3.5",
              "anima persa in compressione [mm]"),
        value("W{eff,y} [mm^{3}]", "Lbl_WyEff", "Modulo efficace intorno a y-y, EC3 6.2.5", "Weff,y [mm3]"),
        value("anima persa M{y} [mm]", "Lbl_PersaWebF",
              "Altezza persa dall'anima inflessa intorno a y-y, ENV 1993-1-1 5.3.5",
              "anima persa in flessione [mm]"),
        value("W{eff,z} [mm^{3}]", "Lbl_WzEff", "Modulo efficace intorno a z-z, EC3 6.2.5", "Weff,z [mm3]"),
        value("ala persa [mm]", "Lbl_PersaAla", "Lunghezza persa da ogni sporgenza, ENV 1993-1-1 5.3.5",
              "ala persa [mm]"),
        value("e{Ny} [mm]", "Lbl_eNy", "Spostamento del baricentro lungo l'anima, EC3 6.2.9.3", "eNy [mm]"),
        value("e{Nz} [mm]", "Lbl_eNz", "Spostamento del baricentro attraverso l'anima, EC3 6.2.9.3",
              "eNz [mm]")};
    return values;
}

void MostraClasse(QLabel* label, int section_class) { label->setText(QString::number(section_class)); }

/// The lower and upper limits in bending, then those in compression.
void MostraLimiti(const QList<QLabel*>& labels, const std::array<std::string, 4>& limits) {
    for (int i = 0; i < labels.size(); ++i)
        Mostra(labels[i], limits.at(static_cast<std::size_t>(i)));
}

} // namespace

FrmClasseDoppioTU::FrmClasseDoppioTU()
    : SchermoDettaglio(QStringLiteral("FrmClasseDoppioTU")), ui_(new Ui::FrmClasseDoppioTU) {
    ui_->setupUi(this);
    ui_->fraEfficace->InColonne(Efficaci(), 2);
    ui_->fraEfficace->hide();
    ui_->piatti->Compone(Piatti());
    MostraAlaInferiore(false);
    CollegaControlli();
    limitiWeb_ = Vettore<QLabel>(QStringLiteral("Lbl_LimiteWeb"));
    limitiAla_ = Vettore<QLabel>(QStringLiteral("Lbl_LimiteAla"));
    pltAeff_ = Vettore<QPushButton>(QStringLiteral("pltAeff"));
    Collega(ui_->LblClasse, &QPushButton::clicked, this, [this] { SpiegaClasse(); });
    for (int i = 0; i < pltAeff_.size(); ++i)
        Collega(pltAeff_[i], &QPushButton::clicked, this, [this, i] { PlottaEfficace(i); });
    DimensionaIniziale({});
}

FrmClasseDoppioTU::~FrmClasseDoppioTU() = default;

void FrmClasseDoppioTU::Calcola() {
    SullaSezioneInUso([this](const ConAnimaEAli auto& s) {
        MostraMateriale(s);
        MostraAnima(s);
        MostraAla(s);
    });
    SullaSezioneInUso([this](const ConContorniEfficaci auto& s) { MostraEfficaci(s); });
    bool different = false;
    SullaSezioneInUso([&different](const ConAliDiverse auto& s) { different = s.SaldataAsimm; });
    MostraAlaInferiore(different);
    if (different)
        CompletaFormAsimmetrici();
    if (!isMaximized())
        DimensionaIniziale(size()); // more rows and buttons ask for more room
}

template <typename S> void FrmClasseDoppioTU::MostraMateriale(const S& s) {
    Mostra(ui_->Lbl_fy, TestoPiano(s.fy));
    Mostra(ui_->Lbl_eps, "0.00#", Epsilon(s.fy));
    MostraClasse(ui_->Lbl_ClasseC, s.ClassePressoFlessione);
}

template <typename S> void FrmClasseDoppioTU::MostraAnima(const S& s) {
    Mostra(ui_->piatti->Valore("Lbl_d"), "0.0#", s.d);
    Mostra(ui_->piatti->Valore("Lbl_tw"), "0.0#", s.tw);
    Mostra(ui_->piatti->Valore("Lbl_SnellWeb"), "0.0#", s.SnellWeb());
    MostraLimiti(limitiWeb_, {s.Limite0WebF, s.Limite1WebF, s.Limite0WebC, s.Limite1WebC});
    MostraClasse(ui_->piatti->Valore("Lbl_ClasseWebF"), s.ClasseWebF);
    MostraClasse(ui_->piatti->Valore("Lbl_ClasseWebC"), s.ClasseWebC);
}

// Of different flanges the limits are those of the lower one, which is classified last.
template <typename S> void FrmClasseDoppioTU::MostraAla(const S& s) {
    Mostra(ui_->piatti->Valore("Lbl_c"), "0.00", s.c);
    Mostra(ui_->piatti->Valore("Lbl_tf"), "0.00", s.tf);
    Mostra(ui_->piatti->Valore("Lbl_SnellAla"), "0.0#", s.SnellAla());
    MostraLimiti(limitiAla_, {s.Limite0AlaF, s.Limite1AlaF, s.Limite0AlaC, s.Limite1AlaC});
    MostraClasse(ui_->piatti->Valore("Lbl_ClasseAlaF"), s.ClasseAlaF);
    MostraClasse(ui_->piatti->Valore("Lbl_ClasseAlaC"), s.ClasseAlaC);
}

template <typename S> void FrmClasseDoppioTU::MostraEfficaci(const S& s) {
    MostraValoriEfficaci(s);
    pltAeff_[0]->setVisible(s.ClasseCompressione == 4 && s.SezioneComp4);
    pltAeff_[1]->setVisible(s.ClasseFlessioneY == 4 && s.SezioneWy4);
    pltAeff_[2]->setVisible(s.ClasseFlessioneZ == 4 && s.SezioneWz4);
}

// Values of a class that is not 4 are empty.
template <typename S> void FrmClasseDoppioTU::MostraValoriEfficaci(const S& s) {
    const bool comp = s.ClasseCompressione == 4 && s.SezioneComp4;
    const bool y = s.ClasseFlessioneY == 4 && s.SezioneWy4;
    const bool z = s.ClasseFlessioneZ == 4 && s.SezioneWz4;
    ui_->fraEfficace->setVisible(comp || y || z);
    const auto show = [this](const char* name, bool there, double value) {
        Mostra(findChild<QLabel*>(QString::fromLatin1(name)),
               there ? FormatoCifre(cifre, value) : std::string());
    };
    show("Lbl_Aeff", comp, s.betaA() * s.Area);
    show("Lbl_WyEff", y, s.WyEff);
    show("Lbl_WzEff", z, s.WzEff);
    show("Lbl_eNy", comp || y, s.eNy);
    show("Lbl_eNz", comp || z, s.eNz);
    const LunghezzePerse lost = PerseDi(s);
    show("Lbl_PersaWebC", s.ClasseWebC == 4, lost.animaCompressa);
    show("Lbl_PersaWebF", s.ClasseWebF == 4, lost.animaInflessa);
    show("Lbl_PersaAla", s.ClasseAlaC == 4, lost.ala);
}

void FrmClasseDoppioTU::CompletaFormAsimmetrici() {
    SullaSezioneInUso([this](const ConAliDiverse auto& s) {
        Mostra(ui_->piatti->Valore("Lbl_cInf"), "0.00", s.cAlaInf);
        Mostra(ui_->piatti->Valore("Lbl_tfInf"), "0.00", s.tAlaInf);
        Mostra(ui_->piatti->Valore("Lbl_SnellAlaInf"), "0.0#", s.SnellAlaInf());
        Mostra(ui_->piatti->Valore("Lbl_LimiteAlaInf_0"), s.Limite0AlaC);
        Mostra(ui_->piatti->Valore("Lbl_LimiteAlaInf_1"), s.Limite1AlaC);
        MostraClasse(ui_->piatti->Valore("Lbl_ClasseAlaInfF"), s.ClasseAlaInfF);
        MostraClasse(ui_->piatti->Valore("Lbl_ClasseAlaInfC"), s.ClasseAlaInfC);
    });
}

void FrmClasseDoppioTU::MostraAlaInferiore(bool visibile) {
    ui_->piatti->MostraPiatto(alaInferiore, visibile);
}

void FrmClasseDoppioTU::SpiegaClasse() const {
    SullaSezioneInUso([](const ConMomenti auto& s) {
        Avvisa("Poiché non è logico penalizzare la resistenza a presso-flessione della sezione,\n"
               "classificandola in base alla classe a compressione dell'anima\n"
               "anche in presenza di azioni assiali modeste,\n"
               "si adotta un criterio mutuato dalla regola EC3 #6.2.9.1 (4)\n"
               "Se Nsd < " +
               FormatoCifre(cifre, N_a_kN(s.Ntrascurabile)) +
               " kN\n"
               "(valore minore fra la metà della resistenza plastica dell'anima\n"
               " ed un quarto della resistenza plastica della sezione)\n"
               "si assume la classe a flessione.\n"
               "Altrimenti si assume la classe a compressione.");
    });
}

void FrmClasseDoppioTU::PlottaEfficace(int indice) {
    SullaSezioneInUso([indice](ConContorniEfficaci auto& s) {
        s.SezioneEfficaceDaPlottare = static_cast<std::int16_t>(indice);
    });
    PlottaSezioneCorrente(*this);
}

} // namespace sagomi
