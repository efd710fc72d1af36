#include "screens/SagomaDi.h"

#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

SagomaDisegnata SagomaDi(const SezioneDoppioT& sezione) {
    const SezioneDoppioT& s = sezione;
    SagomaDisegnata picture;
    if (!s.SezioneGenericaCorrente)
        return picture;
    const auto& outline = *s.SezioneGenericaCorrente->Poligono;
    for (int i = 1; i <= outline.nVertici(); ++i)
        picture.contorno << QPointF(outline.xi(i), outline.yi(i));
    picture.h = s.h;
    picture.b = s.b;
    picture.tw = s.tw;
    picture.tf = s.tf;
    picture.raggio = s.Saldata ? s.r : s.r1;
    picture.yG = s.yG;
    picture.nomeRaggio = s.Saldata ? QStringLiteral("r") : QStringLiteral("r1");
    return picture;
}

} // namespace sagomi
