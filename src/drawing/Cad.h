#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

/// Drawing straight into a running CAD program, through the operations of its automation. The names are those
/// of that interface. Where no program is plugged in, as on systems without such an automation, CadApre says
/// so and nothing is drawn.
namespace sagomi {

using PuntoCad = std::array<double, 3>; ///< z is 0

/// An entity that has just been added.
class EntitaCad {
public:
    virtual ~EntitaCad() = default;
    virtual void Color(std::int16_t colore) = 0;
};

/// Model space, or a block.
class ContenitoreCad {
public:
    virtual ~ContenitoreCad() = default;
    virtual std::shared_ptr<EntitaCad> AddLine(const PuntoCad& inizio, const PuntoCad& fine) = 0;
    virtual std::shared_ptr<EntitaCad> AddCircle(const PuntoCad& centro, double raggio) = 0;
    /// @param coordinate  pairs x, y
    virtual std::shared_ptr<EntitaCad> AddLightWeightPolyline(const std::vector<double>& coordinate) = 0;
    virtual std::shared_ptr<EntitaCad> AddText(std::string_view testo, const PuntoCad& punto,
                                               double altezza) = 0;
};

class DocumentoCad {
public:
    virtual ~DocumentoCad() = default;
    virtual std::shared_ptr<ContenitoreCad> ModelSpace() = 0;
};

class ApplicazioneCad {
public:
    virtual ~ApplicazioneCad() = default;
    virtual void Visible(bool visibile) = 0;
    virtual std::shared_ptr<DocumentoCad> ActiveDocument() = 0;
    virtual void ZoomExtents() = 0;
    /// Brings its window to the front.
    virtual void Attiva() = 0;
};

/// Finds the running program of a name that systems know it by; null when there is none.
using TrovaCad = std::function<std::shared_ptr<ApplicazioneCad>(std::string_view nomeProgramma)>;

/// Plugs in what finds a program and returns what was there. Without one there is no program to be found.
TrovaCad CollegaCad(TrovaCad trova);

inline std::shared_ptr<ApplicazioneCad> AppCad;
inline std::shared_ptr<DocumentoCad> DocumentoAttivoCad;
inline std::shared_ptr<ContenitoreCad> ModelSpaceCad;
inline std::shared_ptr<ContenitoreCad> BloccoCad; ///< the block that "BLOCCO" draws into
inline std::shared_ptr<EntitaCad> TestoCad;       ///< the text added last

/// Connects to the running program, shows it and takes its document. Without one a message says so.
/// @return whether there is a program to draw into
bool CadApre();

/// After the drawing: shows the whole of it and brings the program to the front again.
void CadZoomExtents();

/// Lets go of the program.
void CadLascia();

// One routine an entity; each takes the pen in force. Without a container nothing happens.
void CadLinea(ContenitoreCad* dove, double x1, double y1, double x2, double y2);
void CadCerchio(ContenitoreCad* dove, double x, double y, double r);
void CadPolilinea(ContenitoreCad* dove, std::int16_t n, std::span<const double> x, std::span<const double> y,
                  bool chiusa);
void CadTesto(ContenitoreCad* dove, double x, double y, double altezza, std::string_view testo);

} // namespace sagomi
