#include "screens/PannelloInstabilita.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

#include "frame/ui/GrigliaDerivazione.h"
#include "frame/ui/Mostra.h"
#include "sections/Eurocod3.h"

namespace sagomi {

namespace {

constexpr int stacco = 12; ///< between one value and the next caption [px]

const std::vector<Voce>& Comuni() {
    static const std::vector<Voce> values = {
        {{"LblEps", "epsilon", "", "ε"},
         "Lbl_eps",
         5,
         "Radice di 235 / fy, EC3 tabella 5.2",
         "epsilon",
         Genere::valore},
        {{"LblLamda1", "lamda1", "", "λ{1}"},
         "Lbl_Lamda1",
         6,
         "Snellezza di confronto 93,9 epsilon, EC3 6.3.1.3",
         "lamda1",
         Genere::valore},
        {{"LblBetaA", "betaA", "", "β{A}"},
         "Lbl_betaA",
         6,
         "Area efficace su area lorda: 1 fino alla classe 3, EC3 6.3.1.2",
         "betaA",
         Genere::valore},
        {{"LblGammaM1", "gammaM1", "", "γ{M1}"},
         "lblGM1",
         5,
         "Coefficiente parziale per l'instabilità, EC3 6.1",
         "gammaM1",
         Genere::valore}};
    return values;
}

/// EC3 6.3.1, from the slenderness to the resistance.
const std::vector<Passo>& Derivazione() {
    static const std::vector<Passo> passi = {
        {{"", "i [mm]"}, "i", "i", "i = √(I / A)", "Raggio d'inerzia [mm]", "EC3 6.3.1.3"},
        {{"", "lamda"}, "Lamda", "lamda", "λ = L{0} / i", "Snellezza", "EC3 6.3.1.3"},
        {{"", "lamda segnato"},
         "LamdaS",
         "lamda segnato",
         "λ̄ = λ / λ{1} · √β{A}",
         "Snellezza relativa",
         "EC3 6.3.1.3"},
        {{"", "curva"}, "Curva", "curva", "", "Curva d'instabilità", "EC3 tabella 6.2"},
        {{"", "alfa"}, "Alfa", "alfa", "α", "Fattore di imperfezione", "EC3 tabella 6.1"},
        {{"", "fi"},
         "Fi",
         "fi",
         "φ = ½ [1 + α (λ̄ − 0,2) + λ̄²]",
         "Termine del coefficiente di riduzione",
         "EC3 6.3.1.2"},
        {{"", "chi"},
         "chi",
         "chi",
         "χ = 1 / [φ + √(φ² − λ̄²)]",
         "Coefficiente di riduzione, al più 1",
         "EC3 6.3.1.2"},
        {{"", "N    [kN]", "cr"}, "Ncr", "Ncr", "π² E A / λ²", "Carico critico elastico", "EC3 6.3.1.2"},
        {{"", "N        [kN]", "b,Rd"},
         "NbRd",
         "NbRd",
         "χ β{A} A f{y} / γ{M1}",
         "Resistenza di progetto all'instabilità",
         "EC3 6.3.1.1"},
        {{"", "utilizzo"},
         "Utilizzo",
         "utilizzo",
         "N{Sd} / N{b,Rd}",
         "Forza assiale sulla resistenza, passa fino a 1; vuoto in trazione",
         "EC3 6.3.1.1"},
    };
    return passi;
}

QHBoxLayout* CreaComuni() {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (const Voce& v : Comuni()) {
        if (row->count() > 0)
            row->addItem(new QSpacerItem(stacco, 0, QSizePolicy::Fixed));
        const Coppia pair = CreaCoppia(v);
        row->addWidget(pair.etichetta);
        row->addWidget(pair.campo);
    }
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    auto* governs = new QLabel;
    governs->setObjectName(QStringLiteral("LblGoverna"));
    governs->setAccessibleName(QStringLiteral("Asse che governa"));
    row->addWidget(governs);
    return row;
}

} // namespace

PannelloInstabilita::PannelloInstabilita(QWidget* parent) : QGroupBox(parent) {
    setTitle(tr("Resistenza all'instabilità"));
}

void PannelloInstabilita::ImpostaAssi(const QByteArray& assi) {
    assi_ = assi;
    resistenze_.assign(static_cast<std::size_t>(assi.count(' ')) + 1,
                       std::numeric_limits<double>::quiet_NaN());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(9, 6, 9, 9);
    column->setSpacing(6);
    column->addLayout(CreaComuni());
    column->addItem(new QSpacerItem(0, 4, QSizePolicy::Minimum, QSizePolicy::Fixed));
    auto* derivation = new GrigliaDerivazione;
    derivation->Compone(Derivazione(), QString::fromLatin1(assi).split(u' '));
    column->addWidget(derivation);
}

void PannelloInstabilita::MostraAcciaio(double fy) {
    Mostra(findChild<QLabel*>(QStringLiteral("Lbl_eps")), "0.0#", Epsilon(fy));
    Mostra(findChild<QLabel*>(QStringLiteral("Lbl_Lamda1")), "0.0#", Lamda1(Epsilon(fy)));
}

void PannelloInstabilita::MostraAsse(int asse, double i, double N, double NbRd) {
    const auto label = [this, asse](const char* root) {
        return findChild<QLabel*>(QString::fromLatin1(root) + QString::number(asse));
    };
    Mostra(label("Lbl_i_"), "0.0##", i);
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    Mostra(label("Lbl_Utilizzo_"), "0.0##", N > 0 && NbRd > 0 ? N / NbRd : nothing);
    resistenze_.at(static_cast<std::size_t>(asse)) = NbRd;
    MostraGoverna(N);
}

void PannelloInstabilita::MostraGoverna(double N) {
    const QStringList axes = QString::fromLatin1(assi_).split(u' ');
    const auto of = [this](qsizetype axis) { return resistenze_.at(static_cast<std::size_t>(axis)); };
    qsizetype least = -1;
    bool alone = !(N < 0);
    for (qsizetype i = 0; i < axes.size(); ++i) {
        if (least >= 0 && of(i) == of(least))
            alone = false;
        if (std::isfinite(of(i)) && (least < 0 || of(i) < of(least))) {
            least = i;
            alone = !(N < 0);
        }
    }
    if (!alone)
        least = -1;
    for (qsizetype i = 0; i < axes.size(); ++i)
        for (const char* root : {"LblAsse_", "Lbl_NbRd_"}) {
            auto* label = findChild<QLabel*>(QString::fromLatin1(root) + QString::number(i));
            QFont font = label->font();
            font.setBold(i == least);
            label->setFont(font);
        }
    findChild<QLabel*>(QStringLiteral("LblGoverna"))
        ->setText(least < 0 ? QString() : QStringLiteral("governa ") + axes[least]);
}

} // namespace sagomi
