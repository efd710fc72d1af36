#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "catalogue/ui/GrigliaCatalogo.h"
#include "frame/ui/Collocazione.h"
#include "joints/ui/AmbienteGiunti.h"

/// Looks for texts that are cut, on every screen: maximised, at their own size, and beside each other. The
/// desktop is given by --desktop=WIDTHxHEIGHT in its own pixels, the scale by QT_SCALE_FACTOR; where
/// SAGOMI_FIGURE names a folder, pictures of the screens go there.

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A table scrolls by its nature; its heads and columns are looked at apart.
bool InTabella(const QWidget& w) {
    for (const QWidget* up = w.parentWidget(); up != nullptr; up = up->parentWidget())
        if (qobject_cast<const QAbstractItemView*>(up) != nullptr ||
            (qobject_cast<const QAbstractScrollArea*>(up) != nullptr && up->objectName() == u"scorre"))
            return true;
    return false;
}

QString Testo(const QWidget& w) {
    for (const char* property : {"text", "title"})
        if (const QVariant text = w.property(property); text.isValid())
            return text.toString();
    return {};
}

QSize Occorre(const QWidget& w) {
    if (const auto* label = qobject_cast<const QLabel*>(&w)) {
        if (label->text().isEmpty())
            return {};
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&w))
        return {0, list->fontMetrics().height() + 2};
    if (qobject_cast<const QGroupBox*>(&w) != nullptr)
        return {w.minimumSizeHint().width(), 0};
    if (qobject_cast<const QLineEdit*>(&w) != nullptr || qobject_cast<const QAbstractButton*>(&w) != nullptr)
        return w.minimumSizeHint();
    return {};
}

void SegnalaTesti(const Schermo& s, const std::string& state) {
    for (const QWidget* w : s.findChildren<QWidget*>()) {
        if (!w->isVisible() || InTabella(*w))
            continue;
        const QSize needed = Occorre(*w);
        const bool whole = w->width() >= needed.width() && w->height() >= needed.height();
        EXPECT_TRUE(whole) << state << ": " << s.objectName().toStdString() << "."
                           << w->objectName().toStdString() << " \"" << Testo(*w).toStdString() << "\" has "
                           << w->width() << "x" << w->height() << " of " << needed.width() << "x"
                           << needed.height();
    }
}

void SegnalaScorrimenti(const Schermo& s, const std::string& state) {
    const auto* area = qobject_cast<const QScrollArea*>(s.centralWidget());
    if (area == nullptr)
        return;
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0)
        << state << ": " << s.objectName().toStdString() << " scrolls sideways in " << s.width();
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0)
        << state << ": " << s.objectName().toStdString() << " scrolls in " << s.height() << " for "
        << area->widget()->height();
}

void SegnalaColonne(const Schermo& s, const std::string& state) {
    const auto* table = s.findChild<GrigliaCatalogo*>();
    if (table == nullptr || !s.isMaximized())
        return;
    EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0)
        << state << ": the last columns of " << s.objectName().toStdString() << " are out of sight";
    const QHeaderView* heads = table->horizontalHeader();
    for (int column = 0; column < heads->count(); ++column) {
        const QString text = table->model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_GE(table->columnWidth(column), heads->fontMetrics().horizontalAdvance(text))
            << state << ": " << text.toStdString();
    }
}

void SegnalaFuori(const Schermo& s, const std::string& state) {
    const QRect desktop = s.screen()->availableGeometry();
    EXPECT_TRUE(desktop.contains(s.geometry()))
        << state << ": " << s.objectName().toStdString() << " " << s.x() << "," << s.y() << " " << s.width()
        << "x" << s.height();
}

class MisureTest : public AmbienteGiunti, public testing::WithParamInterface<int> {
protected:
    void SetUp() override {
        prima_ = QApplication::font();
        QFont font = prima_;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        AmbienteSchermi::SetUp();
        PostiFinestre().clear();
    }
    void TearDown() override {
        AmbienteSchermi::TearDown();
        QApplication::setFont(prima_);
    }
    static void Posa() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
    /// Everything that can be wrong with a window.
    static void Guarda(const Schermo& s, const std::string& state) {
        Posa();
        SegnalaTesti(s, state);
        SegnalaScorrimenti(s, state);
        SegnalaColonne(s, state);
        SegnalaFuori(s, state);
        Figura(s, state);
    }
    static void Figura(const Schermo& s, const std::string& state) {
        const QString folder = qEnvironmentVariable("SAGOMI_FIGURE");
        if (folder.isEmpty())
            return;
        auto& schermo = const_cast<Schermo&>(s);
        schermo.grab().save(QStringLiteral("%1/%2_%3_%4pt.png")
                                .arg(folder, s.objectName(), QString::fromStdString(state))
                                .arg(GetParam()));
    }

private:
    QFont prima_;
};

TEST_P(MisureTest, NothingIsCutAtItsOwnSize) { Guarda(Avvia(), "own size"); }

TEST_P(MisureTest, NothingIsCutMaximised) {
    auto& s = Avvia();
    const double before = s.Rapporto();
    s.showMaximized();
    Guarda(s, "maximised");
    EXPECT_LE(s.Rapporto(), before * s.ridimensiona.altezza + 1e-9) << "the ratio of the heights at most";
    EXPECT_GE(s.Rapporto(), before * 0.98);
    s.showNormal();
    Guarda(s, "restored");
    EXPECT_DOUBLE_EQ(s.Rapporto(), before);
}

TEST_P(MisureTest, EveryScreenShowsItsTexts) {
    auto& s = Avvia();
    VaA(s, "IPE 300");
    for (const bool maximised : {false, true}) {
        const std::string state = maximised ? "from maximised" : "from normal";
        if (maximised)
            s.showMaximized();
        Posa();
        for (const VoceSchermo& voce : NavigaSchermi::Unico().Tavola()) {
            if (voce.nome == s.objectName())
                continue;
            if (voce.nome == u"FrmPltSezione")
                Preme(&s, "CmdPlotta");
            else
                NavigaSchermi::Unico().Apre(voce.nome, s);
            auto* screen = NavigaSchermi::Unico().Trova(voce.nome);
            ASSERT_NE(screen, nullptr) << voce.nome.toStdString();
            Guarda(*screen, state);
            if (dynamic_cast<SchermoSezione*>(screen) != nullptr) {
                if (maximised)
                    screen->showMaximized();
                Guarda(*screen, state + " itself");
                NavigaSchermi::Unico().Passa(s, screen);
            } else
                screen->close();
        }
    }
}

TEST_P(MisureTest, EveryTabOfAJointIsWhole) {
    NodoT();
    Scrive("TxtL_Dx", "6");
    Scrive("TxtM_Dx", "20");
    Scrive("TxtT_T", "130"); // more than the compressed row alone takes
    const auto* tabs = Trova<QTabWidget>(g, "SSTab1");
    const auto* drawing = Trova<QWidget>(g, "VistaGiunto");
    Guarda(*g, "nothing computed");
    const int room = drawing->width();
    for (const int rows : {1, 2, 1}) {
        rows == 1 ? Sceglie("Optfila_0") : Verifica2File();
        if (rows == 1)
            Verifica1Fila();
        Preme(g, "cmdCalcola");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            Scheda(tab);
            Guarda(*g, std::to_string(rows) + " rows, tab " + std::to_string(tab));
            EXPECT_EQ(drawing->width(), room) << "what is left to the drawing";
        }
    }
}

TEST_P(MisureTest, DetailsCoverNeitherEachOtherNorTheDesktopsEdge) {
    auto& s = Avvia();
    VaA(s, "IPE 300");
    s.showMaximized();
    Posa();
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmInstabDoppioT"), s);
    Guarda(Aperto("FrmInstabDoppioT"), "first of two");
    NavigaSchermi::Unico().Apre(QStringLiteral("FrmVerifiche"), s);
    Guarda(Aperto("FrmVerifiche"), "second of two");
    const QRect one = Aperto("FrmInstabDoppioT").frameGeometry();
    const QRect two = Aperto("FrmVerifiche").frameGeometry();
    const QRect shared = one & two;
    if (s.screen()->geometry().width() >= 1366) { // where both have room
        EXPECT_LT(shared.width() * shared.height(), two.width() * two.height() / 2);
    }
}

INSTANTIATE_TEST_SUITE_P(Caratteri, MisureTest, testing::Values(9, 10, 11, 12),
                         [](const auto& font) { return std::to_string(font.param) + "pt"; });

/// The desktop of the offscreen platform, kept as long as the program runs.
std::unique_ptr<QTemporaryFile> Desktop(const QString& measure) {
    auto file = std::make_unique<QTemporaryFile>();
    if (!file->open())
        return nullptr;
    const QStringList sides = measure.split(u'x');
    file->write(QStringLiteral(R"({"screens":[{"name":"prova","x":0,"y":0,"width":%1,"height":%2,)"
                               R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
                    .arg(sides.value(0), sides.value(1))
                    .toUtf8());
    file->flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file->fileName().toUtf8());
    return file;
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::unique_ptr<QTemporaryFile> desktop;
    for (int i = 1; i < argc; ++i)
        if (const QString argument = QString::fromLocal8Bit(argv[i]); argument.startsWith(u"--desktop="))
            desktop = Desktop(argument.section(u'=', 1));
    const QApplication application(argc, argv);
    sagomi::PreparaApplicazione();
    return RUN_ALL_TESTS();
}
