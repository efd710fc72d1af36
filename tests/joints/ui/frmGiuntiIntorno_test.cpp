// What stands around the joint screen, on the screen itself: the list of improvements, formulas and notes,
// the report on paper.
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>

#include "Guasti.h"
#include "drawing/ui/Immagini.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/FileDialogo.h"
#include "joints/ui/AmbienteGiunti.h"
#include "joints/ui/VistaGiunto.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::HasSubstr;
using testing::Not;

namespace {

class IntornoGiuntiTest : public AmbienteGiunti {
protected:
    void SetUp() override {
        AmbienteGiunti::SetUp();
        CopiaAccanto("FormuleGiunto.rtf");
    }
    void TearDown() override {
        ImpostaSceltaFile({});
        ImpostaSceltaStampante({});
        AmbienteGiunti::TearDown();
    }
    Giunto& Joint() const { return *g->NodoCorrente.ConnessioneCorrente; }
    void Progettato() {
        NodoT();
        Scrive("TxtL_Dx", "6");
        Sceglie("OptOttimizza_1");
        Scrive("Texttf_1", "25");
        Scrive("TextL", "100");
        Scrive("Textu_1", "20");
        Preme(g, "cmdCalcola");
        ASSERT_GT(Joint().RisultatiIntermedi_Estrai().n(), 1);
    }
    void DoppioClic(const char* casella) const {
        const auto* box = Trova<QLineEdit>(g, casella);
        for (QLabel* label : g->findChildren<QLabel*>())
            if (label->buddy() == box)
                QTest::mouseDClick(label, Qt::LeftButton);
    }
    [[nodiscard]] QString Percorso(const char* name) const {
        return cartella.filePath(QString::fromUtf8(name));
    }
    void Menu(int i) const { Trova<QAction>(g, ("mnufileitem_" + std::to_string(i)).c_str())->trigger(); }
    static std::string Formula() {
        return Trova<QTextBrowser>(&Aperto("FrmInfoGiunti"), "RichTextBox4")->toPlainText().toStdString();
    }
};

/// A check sizes the welds for its own plate; the row brings those of its search back.
TEST_F(IntornoGiuntiTest, RowFromTheListGivesItsMomentAlsoAfterACheck) {
    Progettato();
    const auto M = std::get<std::string>(Joint().RisultatiIntermedi_Estrai()[1][2]);
    Sceglie("OptCriterio_1");
    Preme(g, "cmdCalcola");
    Preme(g, "CmdRisultati");
    const Schermo& list = Aperto("FrmRisultatiIntermedi");
    Trova<QTableView>(&list, "Griglia")->selectRow(0);
    Preme(&list, "CmdInsericiSelezione");
    EXPECT_EQ(Formato("0.00", Joint().MplRdGIUNTO), M);
    EXPECT_EQ(Legge("TxtMjRd"), FormatoCifre(4, Joint().MplRdGIUNTO));
}

TEST_F(IntornoGiuntiTest, OtherDataForgetTheImprovements) {
    Progettato();
    Preme(g, "CmdRisultati");
    const Schermo& list = Aperto("FrmRisultatiIntermedi");
    EXPECT_GT(Trova<QTableView>(&list, "Griglia")->model()->rowCount(), 1);
    Scrive("TxtM_Col", "10");
    EXPECT_EQ(Joint().RisultatiIntermedi_Estrai().n(), 0);
    EXPECT_EQ(Trova<QTableView>(&list, "Griglia")->model()->rowCount(), 0);
    EXPECT_FALSE(Trova<QPushButton>(g, "CmdRisultati")->isEnabled());
}

/// Before a check the drawing has the distances that follow from the entries, with and without the focus.
TEST_F(IntornoGiuntiTest, FocusMarksAComponentAndMovesNothing) {
    NodoT();
    Sceglie("OptCriterio_1");
    Scrive("Texttf", "15");
    Scrive("Textbf", "160");
    Scrive("Textef", "40");
    Scrive("Textd2", "50");
    auto* view = Trova<VistaGiunto>(g, "VistaGiunto");
    const auto plan = [view] {
        view->grab(); // the components lie where they were painted last
        std::vector<ComponenteGiunto> components;
        for (int y = 0; y < view->height(); y += 5)
            for (int x = 0; x < view->width(); x += 5)
                components.push_back(view->Componente(QPointF(x, y)).componente);
        return components;
    };
    Trova<QLineEdit>(g, "TxtM_Dx")->setFocus();
    const auto before = plan();
    ASSERT_THAT(before, testing::Contains(ComponenteGiunto::Bulloni));
    Trova<QTabWidget>(g, "SSTab1")->setCurrentIndex(2);
    Trova<QLineEdit>(g, "Textd2")->setFocus();
    EXPECT_EQ(plan(), before);
}

/// A row always has a component that governs it.
TEST_F(IntornoGiuntiTest, WhatGovernsHasTheColourOfItsGroup) {
    Progettato();
    const auto* row = Trova<QLineEdit>(g, "txtFmin0");
    EXPECT_TRUE(row->font().bold());
    EXPECT_NE(row->palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
    Preme(g, "CmdAzzera");
    EXPECT_FALSE(row->font().bold());
    EXPECT_EQ(row->palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
}

TEST_F(IntornoGiuntiTest, AnEntryThatIsTakenHasTheColourOfItsGroup) {
    NodoT();
    Scrive("TxtM_Dx", "40");
    Scrive("TxtM_Col", "10");
    const auto ink = [this](const char* box) {
        return Trova<QLineEdit>(g, box)->palette().color(QPalette::Text);
    };
    EXPECT_NE(ink("TxtM_Dx"), ink("TxtM_Col"));
    EXPECT_NE(ink("TxtM_Dx"), QApplication::palette().color(QPalette::Text));
}

TEST_F(IntornoGiuntiTest, DoubleClickOnANameOpensItsFormula) {
    NodoT();
    DoppioClic("txtF5");
    EXPECT_THAT(Formula(), HasSubstr("Ft,wc,Rd = beff · tw,c · fy,c / γM0"));
    Sceglie("Optirr_1");
    DoppioClic("txtF2");
    EXPECT_THAT(Formula(), HasSubstr("con irrigidimento"));
    DoppioClic("TextL");
    EXPECT_THAT(Formula(), HasSubstr("h'min"));
}

TEST_F(IntornoGiuntiTest, EveryFormulaIsThere) {
    NodoT();
    int formulas = 0;
    for (QLabel* label : g->findChildren<QLabel*>()) {
        if (label->buddy() == nullptr || !label->toolTip().startsWith(QStringLiteral("Doppio clic")))
            continue;
        QTest::mouseDClick(label, Qt::LeftButton);
        EXPECT_TRUE(Detto().empty()) << label->buddy()->objectName().toStdString();
        ++formulas;
    }
    EXPECT_GT(formulas, 40);
}

TEST_F(IntornoGiuntiTest, InfoTellsOfTheStiffeners) {
    NodoT();
    Sceglie("Optirr_2");
    Preme(g, "CmdInfo");
    EXPECT_THAT(Formula(), HasSubstr("in zona compressa"));
    EXPECT_THAT(Formula(), Not(HasSubstr("superiore")));
}

TEST_F(IntornoGiuntiTest, EachJointOfAFileIsMarkedUntilItIsComputed) {
    Apre();
    Prende("CmdColonnaInf", "HEB 200");
    Prende("CmdTraveDx", "IPE 270");
    Prende("CmdTraveSx", "IPE 270");
    auto* joints = Trova<QComboBox>(g, "CboGiunto");
    for (const int i : {0, 1}) {
        joints->setCurrentIndex(i);
        Verifica1Fila();
        Preme(g, "cmdCalcola");
    }
    const QString file = Percorso("nodo.Gfl");
    ImpostaSceltaFile(
        [file](QWidget*, std::string_view, const QString&, int, const QString&) { return file; });
    Menu(2);
    Menu(1);
    EXPECT_THAT(Scritta(g, "LblStato"), HasSubstr("dal file"));
    Preme(g, "cmdCalcola");
    EXPECT_THAT(Scritta(g, "LblStato"), Not(HasSubstr("dal file")));
    joints->setCurrentIndex(1);
    EXPECT_THAT(Scritta(g, "LblStato"), HasSubstr("dal file"));
}

TEST_F(IntornoGiuntiTest, PaperAndFileHaveTheSameLines) {
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    NodoT();
    Verifica2File();
    Preme(g, "cmdCalcola");
    const QString file = Percorso("relazione.txt");
    const QString pdf = Percorso("relazione.pdf");
    ImpostaSceltaFile(
        [file](QWidget*, std::string_view, const QString&, int, const QString&) { return file; });
    ImpostaSceltaStampante([pdf](QPrinter& printer, QWidget*) {
        printer.setOutputFileName(pdf);
        return true;
    });
    Menu(3);
    Menu(4);
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    ASSERT_TRUE(reader.waitForFinished());
    const auto lines = [](const QString& text) {
        QStringList all;
        for (const QString& line : text.split(QRegularExpression(QStringLiteral("[\r\n\f]+"))))
            if (!line.trimmed().isEmpty())
                all << line.simplified();
        return all;
    };
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    QString all = QString::fromLatin1(written.readAll());
    all.replace(QChar(0x92), QChar(0x2019)); // what some locales group figures with, in code page 1252
    const QStringList onFile = lines(all);
    EXPECT_GT(onFile.size(), 60);
    EXPECT_EQ(lines(QString::fromUtf8(reader.readAllStandardOutput())), onFile);
}

TEST_F(IntornoGiuntiTest, AReportThatCannotBeWrittenIsToldAndTheJointStays) {
    NodoT();
    Verifica2File();
    Preme(g, "cmdCalcola");
    const std::string before = Legge("TxtMjRd");
    Detto();
    ConOgniGuasto(PathProgramma, "relazione.txt", [&](const std::filesystem::path& file, const char* reason) {
        ImpostaSceltaFile([&](QWidget*, std::string_view, const QString&, int, const QString&) {
            return QString::fromStdString(file.string());
        });
        Menu(4);
        std::string said;
        for (const Messaggio& message :
             std::exchange(registratore.messaggi, {})) // a title has the reason, too
            said += message.titolo + ": " + message.testo + '\n';
        EXPECT_NE(said.find(file.filename().string()), std::string::npos) << said;
        EXPECT_NE(said.find(reason), std::string::npos) << said;
    });
    EXPECT_EQ(Legge("TxtMjRd"), before);
}

} // namespace
