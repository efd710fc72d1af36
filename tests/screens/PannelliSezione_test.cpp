#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "catalogue/Famiglie.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "screens/Ambiente.h"
#include "screens/CorpoSezione.h"
#include "screens/MenuSezione.h"
#include "screens/PannelloDati.h"
#include "screens/PannelloFamiglie.h"
#include "screens/PannelloRisultati.h"
#include "screens/ValoriRiga.h"
#include "screens/VociSezione.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Names, along the focus chain, of what the tab key reaches.
QStringList Catena(const QWidget& panel) {
    QStringList names;
    for (const QWidget* w = panel.nextInFocusChain(); w != &panel; w = w->nextInFocusChain())
        if ((w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && w->isEnabled())
            names << w->objectName();
    return names;
}

template <typename T> bool Ha(const QWidget& panel, const char* name) {
    return panel.findChild<T*>(QString::fromLatin1(name)) != nullptr;
}

QByteArray Nome(const FamigliaSchermo& f) { return QByteArray::fromStdString(std::string(f.schermo)); }

// The captions of the families are the names of their sheets, for each of the five main screens.
TEST(PannelloFamiglieTest, HasABoxForEachFamilyAndAButtonForEachKey) {
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        SCOPED_TRACE(std::string(f.schermo));
        PannelloFamiglie panel;
        panel.ImpostaSchermo(Nome(f));
        for (std::size_t i = 0; i < f.fogli.size(); ++i) {
            const auto* box = Trova<QCheckBox>(&panel, ("ChkTipo_" + std::to_string(i)).c_str());
            EXPECT_EQ(box->text().toStdString(), f.fogli[i]);
            EXPECT_EQ(box->isChecked(), f.fogli[i] == f.primoFoglio);
        }
        const std::size_t own = f.foglioUtente.empty() ? 0 : 1; // the box of the user's own sheet
        EXPECT_EQ(static_cast<std::size_t>(panel.findChildren<QCheckBox*>().size()), f.fogli.size() + own);
        for (int i = 0; i < 3; ++i) {
            const auto* key = Trova<QRadioButton>(&panel, ("OptionOrdina_" + std::to_string(i)).c_str());
            EXPECT_EQ(key->text().toStdString(), f.ordini[static_cast<std::size_t>(i)]);
            EXPECT_EQ(key->isChecked(), i == f.primoOrdine);
        }
        EXPECT_EQ(Catena(panel).last(), "AggiornaTabella");
    }
}

TEST(PannelloFamiglieTest, AScreenThatIsNoMainScreenIsRefused) {
    PannelloFamiglie panel;
    EXPECT_THROW(panel.ImpostaSchermo("frmGamma"), std::out_of_range);
}

TEST(ValoriRigaTest, HasABoxUnderEachHeadingOfItsFamilies) {
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        SCOPED_TRACE(std::string(f.schermo));
        ValoriRiga values;
        values.ImpostaSchermo(Nome(f));
        const auto& headings = Intestazioni(f.schermo);
        for (std::size_t i = 1; i < headings.size(); ++i) {
            const std::string index = std::to_string(i);
            const auto* box = Trova<QLineEdit>(&values, ("TxtProf_" + index).c_str());
            const auto* label = Trova<QLabel>(&values, ("LblProf_" + index).c_str());
            const std::string caption = i == 1 ? "g (Kg/m)" : std::string(headings[i]);
            EXPECT_EQ(label->text().toStdString(), caption + ":");
            EXPECT_EQ(label->buddy(), box);
            EXPECT_EQ(box->accessibleName().toStdString(), headings[i]);
            EXPECT_FALSE(box->toolTip().isEmpty()) << headings[i];
            EXPECT_TRUE(box->isReadOnly());
        }
        EXPECT_EQ(static_cast<std::size_t>(values.findChildren<QLineEdit*>().size()), headings.size() - 1);
    }
}

TEST(PannelloDatiTest, EntriesStandInReadingOrder) {
    PannelloDati entries;
    entries.ImpostaSchermo("frmDoppioT");
    EXPECT_EQ(Catena(entries),
              (QStringList{"ComboTipoAcciaio", "Txt_fy", "Txt_fu", "Txt_L0_0", "Txt_L0_1", "TxtNsd"}));
    const auto* hidden = Trova<QLineEdit>(&entries, "txtNascosto");
    EXPECT_EQ(hidden->text(), "Non Cancellare");
    EXPECT_FALSE(hidden->isVisibleTo(&entries));
}

TEST(PannelloDatiTest, AnglesBuckleAboutThreeAxesAndTakeNoForce) {
    PannelloDati entries;
    entries.ImpostaSchermo("frmSagomiL");
    EXPECT_TRUE(Ha<QLineEdit>(entries, "Txt_L0_2"));
    EXPECT_FALSE(Ha<QLineEdit>(entries, "TxtNsd"));
}

TEST(PannelloRisultatiTest, ClassesAndResistancesAreReadOnlyWithTheirDetails) {
    PannelloRisultati results;
    results.ImpostaSchermo("frmDoppioT");
    for (const char* name :
         {"TxtClasseCompressione", "TxtClasseFlessioneY", "TxtClasseFlessioneZ", "TxtClassePressFless",
          "TxtNbRd_0", "TxtNbRd_1", "TxtMcRd_0", "TxtMcRd_1", "TxtVplRd_0", "TxtVplRd_1"})
        EXPECT_TRUE(Trova<QLineEdit>(&results, name)->isReadOnly()) << name;
    EXPECT_EQ(Catena(results), (QStringList{"LblClasse", "LblNbRd", "LblMcRd", "lblVplRd"}));
    EXPECT_EQ(Trova<QLineEdit>(&results, "TxtNbRd_1")->accessibleName(), "N bz,Rd [kN]");
}

TEST(PannelloRisultatiTest, EachKindOfSectionHasItsOwn) {
    PannelloRisultati channels;
    channels.ImpostaSchermo("frmSagomiU");
    EXPECT_TRUE(Ha<QLineEdit>(channels, "TxtClasseFlessione"));
    EXPECT_FALSE(Ha<QLineEdit>(channels, "TxtClassePressFless"));
    PannelloRisultati angles;
    angles.ImpostaSchermo("frmSagomiL");
    EXPECT_TRUE(Ha<QLineEdit>(angles, "TxtNbRd_2"));
    EXPECT_FALSE(Ha<QLineEdit>(angles, "TxtMcRd_0"));
    EXPECT_FALSE(Ha<QLineEdit>(angles, "TxtClasseFlessioneZ"));
}

TEST(PannelloRisultatiTest, ShowsAndEmptiesByName) {
    PannelloRisultati results;
    results.ImpostaSchermo("frmDoppioT");
    results.Mostra("TxtNbRd_0", QStringLiteral("12"));
    results.Mostra("TxtMcRd_0", QStringLiteral("34"));
    results.Svuota(QStringLiteral("TxtNbRd"));
    EXPECT_EQ(Testo(&results, "TxtNbRd_0"), "");
    EXPECT_EQ(Testo(&results, "TxtMcRd_0"), "34");
    results.Svuota();
    EXPECT_EQ(Testo(&results, "TxtMcRd_0"), "");
    EXPECT_THROW(results.Mostra("TxtNbRd_2", {}), std::out_of_range);
}

// The window is sized before the first row is drawn.
TEST(CorpoSezioneTest, PictureTakesItsRoomFromTheStart) {
    const CorpoSezione body("frmDoppioT");
    const auto* picture = Trova<ImmagineDisegno>(&body, "Picture1");
    EXPECT_GT(picture->sizeHint().width(), 150);
    EXPECT_EQ(Catena(body).last(), "CmdPlotta");
}

TEST(MenuSezioneTest, OffersTheOtherFamiliesAndLeavesScreensDisabled) {
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        SCOPED_TRACE(std::string(f.schermo));
        MenuSezione menus;
        menus.ImpostaSchermo(Nome(f));
        EXPECT_EQ(Trova<QMenu>(&menus, "mnuTipo")->actions().size(), 4);
        EXPECT_EQ(menus.findChild<QAction*>(QStringLiteral("mnuTipoT")) == nullptr,
                  f.schermo == "frmDoppioT");
        EXPECT_FALSE(Trova<QAction>(&menus, "MnuGiunto")->isEnabled());
        EXPECT_FALSE(Trova<QAction>(&menus, "mnuCollegamenti_0")->isEnabled());
        EXPECT_TRUE(Trova<QAction>(&menus, "mnuFileItem_0")->isEnabled());
        EXPECT_EQ(Trova<QAction>(&menus, "mnuFileItem_0")->shortcut(), QKeySequence("Ctrl+Q"));
    }
}

TEST(VociSezioneTest, EveryMainScreenHasItsRowAndNoOther) {
    for (const FamigliaSchermo& f : FamiglieSchermi())
        EXPECT_EQ(VociDi(f.schermo).schermo, f.schermo);
    EXPECT_THROW(VociDi("frmGamma"), std::out_of_range);
    EXPECT_STREQ(DescrizioneColonna("h (mm)"), "Altezza totale");
    EXPECT_STREQ(DescrizioneColonna("zzz (mm)"), "");
    EXPECT_STREQ(DescrizioneColonna("b (mm)", "frmSagomiU"), "Larghezza delle ali");
    EXPECT_STREQ(DescrizioneColonna("b (mm)", "frmSagomiL"), "Lato corto") << "an angle has no flanges";
    EXPECT_STREQ(DescrizioneColonna("r2 (mm)", "frmSagomiL"), "Raggio all'estremità dei lati");
}

// A screen reader tells controls apart by their names alone.
TEST(VociSezioneTest, NoTwoResultsOfAScreenHaveTheSameAccessibleName) {
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        PannelloRisultati results;
        results.ImpostaSchermo(Nome(f));
        QStringList names;
        for (const QWidget* w : results.findChildren<QWidget*>())
            if (!w->accessibleName().isEmpty()) {
                EXPECT_FALSE(names.contains(w->accessibleName())) << w->accessibleName().toStdString();
                names << w->accessibleName();
            }
    }
}

} // namespace
