#include "drawing/Cad.h"

#include <utility>

#include "drawing/Grafica.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

TrovaCad& Trovatore() {
    static TrovaCad trova;
    return trova;
}

std::shared_ptr<ApplicazioneCad> Cerca() {
    if (!Trovatore())
        return nullptr;
    for (const std::string_view nome : {"AutoCAD.Application.17", "AutoCAD.Application"})
        if (auto programma = Trovatore()(nome))
            return programma;
    return nullptr;
}

void Colora(const std::shared_ptr<EntitaCad>& entita) {
    if (entita)
        entita->Color(ColorePenna);
}

} // namespace

TrovaCad CollegaCad(TrovaCad trova) { return std::exchange(Trovatore(), std::move(trova)); }

bool CadApre() {
    CadLascia();
    AppCad = Cerca();
    if (!AppCad) {
        Avvisa("Impossibile aprire Autocad.\r\n"
               "Controllare che la versione di Autocad non sia LT",
               {}, Icona::Stop);
        return false;
    }
    AppCad->Visible(true);
    DocumentoAttivoCad = AppCad->ActiveDocument();
    if (DocumentoAttivoCad)
        ModelSpaceCad = DocumentoAttivoCad->ModelSpace();
    AppCad->Attiva();
    return true;
}

void CadZoomExtents() {
    if (!AppCad)
        return;
    AppCad->ZoomExtents();
    AppCad->Attiva();
}

void CadLascia() {
    TestoCad.reset();
    BloccoCad.reset();
    ModelSpaceCad.reset();
    DocumentoAttivoCad.reset();
    AppCad.reset();
}

void CadLinea(ContenitoreCad* dove, double x1, double y1, double x2, double y2) {
    if (dove != nullptr)
        Colora(dove->AddLine({x1, y1, 0}, {x2, y2, 0}));
}

void CadCerchio(ContenitoreCad* dove, double x, double y, double r) {
    if (dove != nullptr)
        Colora(dove->AddCircle({x, y, 0}, r));
}

void CadPolilinea(ContenitoreCad* dove, std::int16_t n, std::span<const double> x, std::span<const double> y,
                  bool chiusa) {
    if (dove == nullptr || n < 2)
        return;
    std::vector<double> coordinate;
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i)
        coordinate.insert(coordinate.end(), {x[i], y[i]});
    if (chiusa)
        coordinate.insert(coordinate.end(), {x[0], y[0]});
    Colora(dove->AddLightWeightPolyline(coordinate));
}

void CadTesto(ContenitoreCad* dove, double x, double y, double altezza, std::string_view testo) {
    if (dove == nullptr)
        return;
    TestoCad = dove->AddText(testo, {x, y, 0}, altezza);
    Colora(TestoCad);
}

} // namespace sagomi
