#include <QApplication>
#include <QClipboard>
#include <QComboBox>

#include "frame/ui/Casella.h"
#include "frame/ui/Entrata.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Separators as in Italy while it lives, whatever the locale of the run.
struct Italiano {
    Italiano() : decimale(CarDecimale), migliaia(CarMigliaia) {
        CarDecimale = ',';
        CarMigliaia = '.';
    }
    ~Italiano() {
        CarDecimale = decimale;
        CarMigliaia = migliaia;
    }
    std::uint16_t decimale, migliaia;
};

/// A text that comes into an entry in one piece, what the box shows of it, and the number that is read.
struct Incollato {
    QString testo, mostrato;
    double numero;
};

const QList<Incollato> incollati = {{QStringLiteral(" \t12,5 \r\n"), QStringLiteral("12,5"), 12.5},
                                    {QStringLiteral("\u22127,5"), QStringLiteral("-7,5"), -7.5},
                                    {QStringLiteral("1\u00A0234,5"), QStringLiteral("1234,5"), 1234.5},
                                    {QStringLiteral("1\u202F234"), QStringLiteral("1234"), 1234},
                                    {QStringLiteral("1.234,5"), QStringLiteral("1.234,5"), 1234.5}};

/// A text that is no clean number, and the number that is read.
struct Riletto {
    const char* testo;
    double numero;
};

constexpr Riletto riletti[] = {{"2.5", 25}, {"12 kN", 12}, {"abc", 0},
                               {"3--2", 3}, {"1 000", 1},  {"1,2,3", 1.2}};

class EntrateTest : public AmbienteSchermi {
protected:
    /// The entries for numbers of a screen that the user can reach.
    static QList<QLineEdit*> Entrate(const Schermo& screen) {
        QList<QLineEdit*> boxes;
        for (auto* box : screen.findChildren<QLineEdit*>())
            if (!box->isReadOnly() && box->isVisibleTo(&screen) && box->window() == &screen &&
                qobject_cast<QComboBox*>(box->parentWidget()) == nullptr &&
                !box->property("parole").toBool() && !box->objectName().startsWith(QStringLiteral("qt_")))
                boxes << box;
        return boxes;
    }
    static std::string Dove(const Schermo& s, const QLineEdit* box) {
        return s.objectName().toStdString() + '.' + box->objectName().toStdString();
    }

    static void Incolla(QLineEdit* box, const QString& text) {
        box->setFocus();
        box->selectAll();
        QApplication::clipboard()->setText(text);
        box->paste();
    }

    /// Puts the text back in the manner of the program: what was typed counts for nothing.
    static void Rimette(QLineEdit* box, const QString& text) { box->setText(text); }

    static void ProvaIncollati(const Schermo& s, QLineEdit* box) {
        const QString before = box->text();
        for (const Incollato& i : incollati) {
            Incolla(box, i.testo);
            EXPECT_EQ(box->text(), i.mostrato) << Dove(s, box);
            EXPECT_EQ(NumeroIn(box), i.numero) << Dove(s, box);
            EXPECT_TRUE(InDigitazione(box)) << Dove(s, box);
        }
        Rimette(box, before);
    }

    static void ProvaRiletti(const Schermo& s, QLineEdit* box) {
        const QString before = box->text();
        for (const Riletto& r : riletti) {
            Incolla(box, QString::fromLatin1(r.testo));
            const QString said = QStringLiteral("letto come ") + QString::fromStdString(TestoPiano(r.numero));
            EXPECT_EQ(NumeroIn(box), r.numero) << Dove(s, box) << ' ' << r.testo;
            EXPECT_TRUE(box->toolTip().endsWith(said))
                << Dove(s, box) << ' ' << r.testo << ": " << box->toolTip().toStdString();
            const auto* shown = qobject_cast<const Casella*>(box);
            ASSERT_NE(shown, nullptr) << Dove(s, box);
            EXPECT_NE(shown->SegnoMostrato(), Casella::Nessuno) << Dove(s, box) << ' ' << r.testo;
        }
        Rimette(box, before);
    }

    /// On leaving, a text that can stand is rewritten as it was read.
    static void ProvaRiscrittura(const Schermo& s, QLineEdit* box) {
        const QString before = box->text();
        Incolla(box, QStringLiteral("2.5"));
        Entrata::Di(box)->Conclude();
        EXPECT_EQ(box->text(), "25") << Dove(s, box);
        Rimette(box, before);
    }

    int Percorre(Schermo& s, const std::function<void(const Schermo&, QLineEdit*)>& prova) {
        int entries = 0;
        for (QLineEdit* box : Entrate(s)) {
            EXPECT_NE(Entrata::Di(box), nullptr) << Dove(s, box) << " is not watched";
            if (Entrata::Di(box) == nullptr)
                continue;
            prova(s, box);
            EXPECT_TRUE(registratore.testi.empty()) << Dove(s, box) << ": " << registratore.testi.front();
            registratore.testi.clear();
            ++entries;
        }
        return entries;
    }

    int PercorreTutti(const std::function<void(const Schermo&, QLineEdit*)>& prova) {
        static const QHash<QString, QString> openers = {{"FrmMsverg", "FrmPresFless"},
                                                        {"FrmVerifiche", "FrmPresFless"},
                                                        {"frmMsvergH1", "FrmMsverg"},
                                                        {"frmMsvergH2", "FrmMsverg"},
                                                        {"frmTimoshenko", "FrmMsverg"}};
        auto& main = Avvia();
        VaA(main, "IPE 200");
        auto& n = NavigaSchermi::Unico();
        const Italiano italiano;
        registratore.testi.clear();
        int entries = Percorre(main, prova);
        n.Apre("FrmPresFless", main);
        n.Apre("FrmMsverg", n.Prende("FrmPresFless"));
        for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
            if (voce.nome == main.objectName())
                continue;
            n.Apre(voce.nome, n.Prende(openers.value(voce.nome, main.objectName())));
            registratore.testi.clear();
            entries += Percorre(n.Prende(voce.nome), prova);
        }
        return entries;
    }
};

TEST_F(EntrateTest, EveryEntryOfEveryScreenUnderstandsWhatIsPasted) {
    EXPECT_GE(PercorreTutti(ProvaIncollati), 40);
}

TEST_F(EntrateTest, EveryEntryOfEveryScreenSaysHowItWasRead) { PercorreTutti(ProvaRiletti); }

TEST_F(EntrateTest, EveryEntryOfEveryScreenIsRewrittenAsItWasRead) { PercorreTutti(ProvaRiscrittura); }

/// A result longer than its box shows its head, and the whole in the tool-tip.
TEST_F(EntrateTest, EveryResultBoxOfEveryScreenShowsItsHead) {
    auto& main = Avvia();
    auto& n = NavigaSchermi::Unico();
    int results = 0;
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        if (voce.nome != main.objectName())
            n.Apre(voce.nome, main);
        for (auto* box : n.Prende(voce.nome).findChildren<Casella*>()) {
            if (!box->Risultato() || Entrata::Di(box) != nullptr)
                continue;
            const QString longest = QStringLiteral(" 123,456,789,012,345,678,901,234,567,890");
            box->setText(longest);
            box->setText(longest); // which is no change, but moves the cursor
            EXPECT_EQ(box->cursorPosition(), 0)
                << voce.nome.toStdString() << '.' << box->objectName().toStdString();
            EXPECT_TRUE(box->toolTip().startsWith(longest))
                << voce.nome.toStdString() << '.' << box->objectName().toStdString();
            ++results;
        }
    }
    EXPECT_GE(results, 40);
}

} // namespace
