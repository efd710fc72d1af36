#include "AmbienteTravi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmAcciaioClsTest : public AmbienteTravi {};

TEST_F(FrmAcciaioClsTest, Figure) {
    Apre();
    Piena();
    Premi(f, "cmdCalcola");
    for (const auto& t : registratore.testi)
        printf("%s\n", t.c_str());
    f->grab().save("/tmp/comp_1.png");
    Grecata(2);
    Sceglie("OpTipoVerifica", 2);
    Scrive({{"Txt_M", "200"}});
    Premi(f, "cmdCalcola");
    for (const auto& t : registratore.testi)
        printf("%s\n", t.c_str());
    f->grab().save("/tmp/comp_2.png");
    Premi(f, "cmdConnessioni");
    auto& c = Aperto("frmConnettori");
    Trova<QLineEdit>(&c, "txtInput_3")->setText("8");
    Premi(&c, "CmdProgetta");
    for (const auto& t : registratore.testi)
        printf("%s\n", t.c_str());
    c.grab().save("/tmp/comp_3.png");
}

} // namespace
