#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include "frame/ui/IndiceGuida.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class UnitaGuidaTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        CopiaAccanto("GiuntoFlangiato.hlp");
    }
};

/// The text of the topic that has a place: from its heading to the next one.
QString Argomento(const QString& html, const QString& place) {
    static const QRegularExpression heading(QStringLiteral("<h[123]>"));
    const qsizetype at = html.indexOf(QLatin1String("name=\"") + place + u'"');
    const qsizetype from = html.lastIndexOf(heading, at);
    const qsizetype to = html.indexOf(heading, at);
    return QTextDocumentFragment::fromHtml(html.mid(from, to < 0 ? -1 : to - from)).toPlainText();
}

/// The unit in the name of a box: "hc [mm]", "fy (N/mm2)".
QString Unita(const QWidget& box) {
    static const QRegularExpression unit(
        QStringLiteral(R"([\[(]((?:mm\d?|cm\d?|m|kNm(?:/rad)?|kN|N/mm2|kg/m)?)[\])])"));
    return unit.match(box.accessibleName()).captured(1);
}

// What a box is to be given, or gives, in which unit: its topic says it.
TEST_F(UnitaGuidaTest, TopicOfEveryFieldNamesItsUnit) {
    Avvia();
    auto& n = NavigaSchermi::Unico();
    int fields = 0;
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        const Schermo& screen = n.Prende(voce.nome);
        const QString html = LeggeGuida(screen.FileGuida());
        for (const QWidget* w : screen.findChildren<QWidget*>()) {
            const QString unit = Unita(*w);
            const bool field =
                qobject_cast<const QLineEdit*>(w) != nullptr || qobject_cast<const QLabel*>(w) != nullptr;
            const QString place = unit.isEmpty() || !field ? QString() : AncoraDi(html, w);
            if (place.isEmpty())
                continue;
            ++fields;
            const QString text = Argomento(html, place);
            const QRegularExpression word(QStringLiteral("(?<![\\w/])") + QRegularExpression::escape(unit) +
                                          QStringLiteral("(?![\\w/])"));
            EXPECT_TRUE(text.contains(word))
                << voce.nome.toStdString() << '.' << w->objectName().toStdString() << " ["
                << unit.toStdString() << "] at " << place.toStdString();
        }
    }
    EXPECT_GT(fields, 120);
}

} // namespace
