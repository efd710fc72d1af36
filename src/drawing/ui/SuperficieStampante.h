#pragma once

#include <QPainter>

#include <functional>

#include "drawing/ui/SuperficieQt.h"

class QPrinter;

namespace sagomi {

/// A page as surface: its own scale is true millimetres from the top left corner of what can be printed;
/// black ink on white.
class SuperficieStampante : public SuperficieQt {
public:
    /// @param pittore  at work on a printer, a PDF file, or the pages of a print preview
    explicit SuperficieStampante(QPainter& pittore);
};

/// A print job at work, from its making to its end.
class LavoroDiStampa {
public:
    explicit LavoroDiStampa(QPrinter& stampante);

    /// False when the printer or its file cannot be had.
    [[nodiscard]] bool Iniziato() const { return iniziato_; }
    /// Draws pages, counted from 0, until one says that it was the last; all of them so many times.
    /// @param disegna  draws a page and tells whether another one follows
    void Pagine(int copie, const std::function<bool(Superficie& foglio, int numero)>& disegna);

private:
    QPrinter& stampante_;
    QPainter pittore_;
    bool iniziato_;
};

} // namespace sagomi
