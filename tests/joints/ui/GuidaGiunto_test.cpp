#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTableView>

#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class GuidaGiuntoTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        QFile help(QStringLiteral(SAGOMI_BIN "/GiuntoFlangiato.hlp"));
        ASSERT_TRUE(help.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(help.readAll());
        static const QRegularExpression anchor(QStringLiteral("<a name=\"([^\"]+)\">"));
        for (auto found = anchor.globalMatch(text); found.hasNext();)
            topics << found.next().captured(1);
    }

    /// A control of an array shares the topic of the array.
    [[nodiscard]] bool HaArgomento(const QString& name) const {
        static const QRegularExpression index(QStringLiteral("_\\d+$"));
        return topics.contains(name) || topics.contains(QString(name).remove(index));
    }

    template <typename T> void Esamina(const Schermo& screen) const {
        for (const T* control : screen.findChildren<T*>())
            if (const QString name = control->objectName(); !name.isEmpty() &&
                                                            !name.startsWith(QStringLiteral("qt_")) &&
                                                            !name.startsWith(QStringLiteral("Scroll"))) {
                EXPECT_TRUE(HaArgomento(name)) << screen.objectName().toStdString() << '.'
                                               << name.toStdString() << " is not in the help";
            }
    }

    QSet<QString> topics;
};

TEST_F(GuidaGiuntoTest, EveryControlAndEveryResultOfAJointHasItsTopic) {
    auto& main = Avvia();
    for (const char* name : {"frmGiunti", "FrmRisultatiIntermedi", "FrmInfoGiunti"}) {
        EXPECT_TRUE(topics.contains(QLatin1String(name))) << name;
        NavigaSchermi::Unico().Apre(QLatin1String(name), main);
        const Schermo& screen = Aperto(name);
        Esamina<QAbstractButton>(screen);
        Esamina<QLineEdit>(screen);
        Esamina<QComboBox>(screen);
        Esamina<QTableView>(screen);
        for (const QLabel* label : screen.findChildren<QLabel*>())
            if (!label->accessibleName().isEmpty()) {
                EXPECT_TRUE(HaArgomento(label->objectName())) << label->objectName().toStdString();
            }
    }
}

} // namespace
