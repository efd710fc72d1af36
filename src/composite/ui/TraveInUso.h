#pragma once

namespace sagomi {

class AcciaioCls;

/// The screen of a composite beam, as the screens that are opened from it know it.
class TraveInUso {
public:
    virtual ~TraveInUso() = default;

    [[nodiscard]] virtual AcciaioCls& Trave() = 0;
    /// The beam's results are those of its data: computes them, with messages, where they are not.
    /// @return whether the data were accepted
    virtual bool AssicuraRisultati() = 0;
    /// Data of its studs, or the moment, have been changed: the screen takes them over.
    virtual void TraveModificata() = 0;
};

/// A screen that has advice on pairs of studs.
class ConsiglioPioli {
public:
    virtual ~ConsiglioPioli() = default;

    /// First ribs that take 2 studs.
    [[nodiscard]] virtual int NervatureDoppie() const = 0;
};

} // namespace sagomi
