#include <QFontDatabase>
#include <QGroupBox>
#include <QScreen>

#include "frame/ui/Collocazione.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FinestreTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        PostiFinestre().clear();
        s = &Avvia();
    }
    void TearDown() override {
        AmbienteSchermi::TearDown();
        PostiFinestre().clear();
    }
    Schermo& Apre(const char* name) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), *s);
        return Aperto(name);
    }
    frmDoppioT* s = nullptr;
};

TEST_F(FinestreTest, ADetailComesBackWhereItWasLeft) {
    auto& detail = Apre("FrmMcRd");
    detail.move(11, 31);
    detail.close();
    detail.move(0, 0);
    Apre("FrmMcRd");
    EXPECT_EQ(detail.pos(), QPoint(11, 31));
}

TEST_F(FinestreTest, SoDoesAScreenThatTakesThePlaceOfItsCaller) {
    for (const char* name : {"frmBulloni", "frmSaldature", "frmGiunti", "frmAcciaioCls"}) {
        s->move(7, 9);
        auto& screen = Apre(name);
        screen.move(11, 31);
        screen.close();
        EXPECT_EQ(s->pos(), QPoint(7, 9)) << name;
        screen.move(0, 0);
        Apre(name);
        EXPECT_EQ(screen.pos(), QPoint(11, 31)) << name;
        NavigaSchermi::Unico().Lascia(screen);
    }
}

TEST_F(FinestreTest, TheSectionAndItsValuesMayBeCovered) {
    for (const QGroupBox* room : s->findChildren<QGroupBox*>())
        EXPECT_EQ(room->property("copribile").toBool(),
                  room->title() == QLatin1String("Sagomo") ||
                      room->title() == QLatin1String("Valori del sagomo"))
            << room->title().toStdString();
}

TEST_F(FinestreTest, CaptionsAreNeverCut) {
    const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::TitleFont));
    for (const VoceSchermo& voce : QList<VoceSchermo>(NavigaSchermi::Unico().Tavola())) {
        if (voce.nome == u"FrmPltSezione")
            continue; // its title comes with its drawing
        const auto& window = NavigaSchermi::Unico().Prende(voce.nome);
        const std::string name = voce.nome.toStdString();
        const int desktop = window.screen()->availableGeometry().width() - 16;
        EXPECT_GE(window.minimumWidth(),
                  std::min(desktop, metrics.horizontalAdvance(window.windowTitle()) + 100))
            << name;
    }
}

// Resistances and values of one column, for one number right of the other.
TEST_F(FinestreTest, DecimalsOfTheMainScreenLineUp) {
    s->show();
    VaA(*s, "IPE 300");
    QCoreApplication::processEvents();
    for (const char* room : {"fraResistenze", "fraValori"}) {
        QHash<int, QHash<int, QString>> columns; // by their right edge, their distances to the separator
        int numbers = 0;
        for (const auto* box : Trova<QGroupBox>(s, room)->findChildren<QLineEdit*>()) {
            const auto at = box->text().indexOf(QChar(CarDecimale));
            if (at < 0 || !box->isReadOnly() || !box->isVisible())
                continue;
            ++numbers;
            const int tail = box->fontMetrics().horizontalAdvance(box->text().mid(at));
            columns[box->geometry().right()].insert(box->textMargins().right() + tail, box->text());
        }
        EXPECT_GT(numbers, columns.size()) << room;
        for (const auto& column : columns)
            EXPECT_EQ(column.size(), 1)
                << room << ": " << QStringList(column.values()).join(u' ').toStdString();
    }
}

} // namespace
