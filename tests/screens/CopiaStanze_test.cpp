// Every room of every screen that shows results can be copied, with their names, values and units.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>
#include <memory>

#include "frame/ui/Copie.h"
#include "frame/ui/EtichettaRisultato.h"
#include "joints/ui/AmbienteGiunti.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// What a result shows, empty for all that is none.
QString Risultato(const QWidget* w) {
    if (const auto* label = qobject_cast<const QLabel*>(w))
        return label->accessibleName().isEmpty() ? QString() : label->text().trimmed();
    if (const auto* button = qobject_cast<const QPushButton*>(w)) // of a table of factors
        return w->parentWidget()->inherits("sagomi::GrigliaFattori") ? button->text().trimmed() : QString();
    const auto* box = qobject_cast<const QLineEdit*>(w);
    return box != nullptr && box->isReadOnly() ? box->text().trimmed() : QString();
}

/// The unit that the reader sees: behind the name of the result, or behind the title of its room.
QString UnitaVista(const QWidget* w, const QWidget& room) {
    static const QRegularExpression unit(QStringLiteral("[\\[(]([^\\])\\s]{1,8})[\\])]:?$"));
    for (const auto* caption : w->window()->findChildren<QLabel*>())
        if (caption->buddy() == w)
            if (const auto found = unit.match(caption->text().trimmed()); found.hasMatch())
                return found.captured(1);
    const auto* group = qobject_cast<const QGroupBox*>(&room);
    return group != nullptr && group->title().endsWith(u']') ? unit.match(group->title()).captured(1)
                                                             : QString();
}

QList<QStringList> Celle(const QMimeData& data) {
    QList<QStringList> rows;
    for (const QString& line : data.text().split(u'\n', Qt::SkipEmptyParts))
        rows << line.split(u'\t');
    return rows;
}

class CopiaStanzeTest : public AmbienteGiunti {
protected:
    void Guarda(const QWidget& screen) {
        copie_.clear();
        for (const auto* w : screen.findChildren<QWidget*>())
            if (!Risultato(w).isEmpty() && w->isVisibleTo(&screen))
                Guarda(screen, w);
    }

    /// The tabs one after the other.
    void GuardaPagine(const QWidget& screen) {
        Guarda(screen);
        for (auto* tabs : screen.findChildren<QTabWidget*>())
            for (int i = 0; i < tabs->count(); ++i) {
                tabs->setCurrentIndex(i);
                Guarda(screen);
            }
    }

    int risultati = 0;

private:
    QHash<const QWidget*, std::shared_ptr<QMimeData>> copie_; ///< of each room, as it is now

    void Guarda(const QWidget& screen, const QWidget* w) {
        const QWidget& room = StanzaDi(*w, screen);
        std::shared_ptr<QMimeData>& data = copie_[&room];
        if (data == nullptr)
            data.reset(StanzaCopiata(room));
        const QString value = Risultato(w).replace(u'¥', QChar(0x221E)).replace(u'\n', u' ');
        const std::string where = screen.objectName().toStdString() + '.' + w->objectName().toStdString();
        const auto rows = Celle(*data);
        const QString unit = UnitaVista(w, room);
        const bool found = std::any_of(rows.begin(), rows.end(), [&](const QStringList& row) {
            return row.size() == 4 && !row[0].isEmpty() && w->accessibleName().startsWith(row[0]) &&
                   row[1] == value && (unit.isEmpty() || row[2].compare(unit, Qt::CaseInsensitive) == 0);
        });
        EXPECT_TRUE(found) << where << " = " << value.toStdString() << " [" << unit.toStdString() << "] in\n"
                           << data->text().toStdString();
        EXPECT_TRUE(data->html().contains(value.left(20).toHtmlEscaped())) << where;
        EXPECT_FALSE(NomeStanza(room).isEmpty()) << where;
        EXPECT_GT(qvariant_cast<QImage>(data->imageData()).width(), 100) << where;
        ++risultati;
    }
};

const QHash<QString, QString> apritori = {{"FrmMsverg", "FrmPresFless"},
                                          {"FrmVerifiche", "FrmPresFless"},
                                          {"frmMsvergH1", "FrmMsverg"},
                                          {"frmMsvergH2", "FrmMsverg"},
                                          {"frmTimoshenko", "FrmMsverg"}};

TEST_F(CopiaStanzeTest, EveryResultOfEveryScreenIsCopiedWithItsRoom) {
    auto& main = Avvia();
    VaA(main, "IPE 500");
    prove::Scrive(&main, "Txt_fy", "355");
    prove::Scrive(&main, "TxtNsd", "900");
    auto& n = NavigaSchermi::Unico();
    GuardaPagine(main);
    n.Apre("FrmPresFless", main);
    n.Apre("FrmMsverg", n.Prende("FrmPresFless"));
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        if (voce.nome == main.objectName())
            continue;
        n.Apre(voce.nome, n.Prende(apritori.value(voce.nome, main.objectName())));
        GuardaPagine(n.Prende(voce.nome));
    }
    EXPECT_GT(risultati, 250);
}

/// Two rows of bolts, checked.
TEST_F(CopiaStanzeTest, SoIsAJointThatHasBeenComputed) {
    NodoT();
    Scrive("TxtL_Dx", "6");
    Scrive("TxtM_Dx", "20");
    Verifica2File();
    Preme(g, "cmdCalcola");
    GuardaPagine(*g);
    EXPECT_GT(risultati, 60);
    const auto* diagram = Trova<QWidget>(g, "DiagrammaRigidezza");
    const std::unique_ptr<QMimeData> points(StanzaCopiata(*diagram));
    const auto rows = Celle(*points);
    ASSERT_GT(rows.size(), 3);
    EXPECT_EQ(rows[0], (QStringList{"Punto", "Rotazione [mrad]", "Momento [kNm]"}));
    EXPECT_EQ(rows.last()[2], QString::fromStdString(Legge("TxtMjRd")).trimmed())
        << "the line ends at the resistance";
}

TEST_F(CopiaStanzeTest, SoIsABeamWithItsStuds) {
    auto& main = Avvia();
    VaA(main, "IPE 300");
    Trova<QAction>(&main, "mnuAcciaioCls")->trigger();
    Schermo& beam = Aperto("frmAcciaioCls");
    for (const auto& [box, text] : {std::pair{"txtDati_1", "120"},
                                    {"txtDati_2", "1200"},
                                    {"txtDati_3", "1000"},
                                    {"txtDati_4", "30"},
                                    {"Txt_M", "90"}})
        prove::Scrive(&beam, box, text);
    Preme(&beam, "cmdCalcola");
    Guarda(beam);
    const QString moment = Trova<QLineEdit>(&beam, "Txt_MplRd")->text().trimmed();
    ASSERT_FALSE(moment.isEmpty());
    const std::unique_ptr<QMimeData> all(StanzaCopiata(beam));
    EXPECT_TRUE(all->text().contains(moment + "\tkNm"));
    Trova<QRadioButton>(&beam, "OpTipoVerifica_2")->click(); // elastic
    Preme(&beam, "cmdCalcola");
    Guarda(beam);
    NavigaSchermi::Unico().Apre("frmConnettori", beam);
    Schermo& studs = Aperto("frmConnettori");
    prove::Scrive(&studs, "txtInput_3", "8");
    Preme(&studs, "CmdProgetta");
    ASSERT_FALSE(Testo(&studs, "txtn").empty());
    Guarda(studs);
    EXPECT_GT(risultati, 25);
}

TEST_F(CopiaStanzeTest, CtrlCOnAMainScreenTakesTheRoomOfTheControl) {
    auto& main = Avvia();
    VaA(main, "IPE 500");
    auto* moment = Trova<QLineEdit>(&main, "TxtMcRd_0");
    moment->deselect();
    QTest::keyClick(moment, Qt::Key_C, Qt::ControlModifier);
    const auto rows = Celle(*QApplication::clipboard()->mimeData());
    ASSERT_GT(rows.size(), 4);
    EXPECT_TRUE(rows.contains(QStringList({"M cy,Rd", moment->text().trimmed(), "kNm", ""})));
    for (const QStringList& row : rows)
        EXPECT_NE(row[0], "Classe Compressione") << "another room";
    QTest::keyClick(moment, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QString all = QApplication::clipboard()->text();
    for (const char* name : {"Classe Compressione", "M cy,Rd", "Wpl,y", "IPE 500"})
        EXPECT_TRUE(all.contains(QLatin1String(name))) << name;
}

/// The menu that opens at a control, with the entry of a name.
QAction* Voce(QWidget* control, const char* name) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), control->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(control, &event);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    return menu == nullptr ? nullptr : menu->findChild<QAction*>(QLatin1String(name));
}

TEST_F(CopiaStanzeTest, TheContextMenuSaysWhatItCopies) {
    auto& main = Avvia();
    VaA(main, "IPE 500");
    auto* moment = Trova<QLineEdit>(&main, "TxtMcRd_0");
    auto* entry = Voce(moment, "mnuCopiaTabella");
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(entry->text().contains("Resistenze di progetto")) << entry->text().toStdString();
    entry->trigger();
    EXPECT_TRUE(QApplication::clipboard()->text().contains("M cy,Rd\t" + moment->text().trimmed() + "\tkNm"));
    QApplication::activePopupWidget()->close();
    entry = Voce(moment, "mnuCopiaImmagine");
    ASSERT_NE(entry, nullptr);
    entry->trigger();
    EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasText());
    EXPECT_GT(QApplication::clipboard()->image().width(), 100);
    QApplication::activePopupWidget()->close();
    entry = Voce(moment, "mnuCopiaFinestra");
    ASSERT_NE(entry, nullptr);
    entry->trigger();
    EXPECT_TRUE(QApplication::clipboard()->text().contains("Classe Compressione"));
    QApplication::activePopupWidget()->close();
}

// A popup that takes no key holds the whole desktop.
TEST_F(CopiaStanzeTest, TheMenuOfAControlThatIsSwitchedOffCanBeLeft) {
    auto& main = Avvia();
    VaA(main, "IPE 500");
    auto* box = Trova<QLineEdit>(&main, "TxtProf_0");
    for (QWidget* control : {static_cast<QWidget*>(box), box->parentWidget()}) {
        ASSERT_NE(Voce(control, "mnuCopiaFinestra"), nullptr);
        control->setEnabled(false);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        control->setEnabled(true);
    }
}

TEST_F(CopiaStanzeTest, AResultOffersItsValueAlone) {
    auto& main = Avvia();
    VaA(main, "IPE 500");
    NavigaSchermi::Unico().Apre("FrmMcRd", main);
    auto* moment = Trova<EtichettaRisultato>(&Aperto("FrmMcRd"), "Lbl_McRd_0");
    auto* entry = Voce(moment, "mnuCopiaValore");
    ASSERT_NE(entry, nullptr);
    entry->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), moment->text().trimmed());
    QApplication::activePopupWidget()->close();
}

TEST_F(CopiaStanzeTest, UnitsAreThoseOfTheNameElseOfTheRoom) {
    QWidget screen;
    QGroupBox room("Bulloni [mm]", &screen);
    EtichettaRisultato none(&room);
    none.setAccessibleName("Resistenza a taglio (per piano di taglio) [kN]");
    none.setToolTip("k [My,Sd + NSd eNy], EC3 6.3");
    none.setText("1");
    const auto rows = RigheStanza(room);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[1], (QStringList{"Resistenza a taglio (per piano di taglio)", "1", "kN", "EC3 6.3"}));
    none.setAccessibleName("k");
    EXPECT_EQ(RigheStanza(room)[1][2], "mm") << "a product is no unit, that of the room is";
    EXPECT_EQ(NomeStanza(room), "Bulloni");
}

} // namespace
