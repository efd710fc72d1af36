#include "frame/ui/EtichettaValori.h"

#include <QImage>

#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;

namespace {

class EtichettaValoriTest : public testing::Test {
protected:
    EtichettaValoriTest() : label(&room), first(&room), second(&room), last(&room) {
        room.resize(400, 60);
        room.setPalette(QPalette(Qt::black, Qt::white));
        first.setGeometry(0, 0, 100, 20);
        second.setGeometry(150, 0, 100, 20);
        last.setGeometry(270, 0, 130, 20);
        label.setGeometry(0, 30, 400, 20);
        label.Sotto({&first, &second, &last});
    }
    /// Whether something is painted between two abscissae.
    bool Dipinto(int left, int right) {
        const QImage image = label.grab().toImage();
        const QRgb ground = image.pixel(image.width() - 1, 0);
        for (int x = left; x < right; ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixel(x, y) != ground)
                    return true;
        return false;
    }
    QWidget room;
    EtichettaValori label;
    QWidget first, second, last;
};

TEST_F(EtichettaValoriTest, EachValueStandsUnderItsSymbol) {
    label.setText(" 0.3 +  0.4 =  0.7");
    EXPECT_TRUE(Dipinto(30, 70)) << "the first term in the middle of its symbol";
    EXPECT_FALSE(Dipinto(0, 25));
    EXPECT_TRUE(Dipinto(115, 135)) << "the sign between";
    EXPECT_TRUE(Dipinto(180, 220));
    EXPECT_FALSE(Dipinto(225, 265));
    EXPECT_TRUE(Dipinto(270, 310)) << "the sum from its symbol on";
    EXPECT_FALSE(Dipinto(360, 399));
    EXPECT_EQ(label.text(), " 0.3 +  0.4 =  0.7") << "read as a whole";
}

TEST_F(EtichettaValoriTest, TheTermThatGovernsStandsOut) {
    label.setText(" 0.3 +  0.4 =  0.7");
    label.Evidenzia(1, "trazione");
    EXPECT_FALSE(first.font().bold());
    EXPECT_TRUE(second.font().bold());
    EXPECT_EQ(label.accessibleDescription(), "Termine che governa: trazione");
    const QImage marked = label.grab().toImage();
    label.Evidenzia(-1);
    EXPECT_FALSE(second.font().bold());
    EXPECT_EQ(label.accessibleDescription(), "");
    EXPECT_NE(label.grab().toImage(), marked) << "its value is in bold too";
}

TEST_F(EtichettaValoriTest, WhatIsNoFormulaIsPaintedAsItIs) {
    label.setText("");
    EXPECT_FALSE(Dipinto(0, 399));
    label.setText("nessuna");
    EXPECT_TRUE(Dipinto(300, 399)) << "at the right, as a result";
}

} // namespace
