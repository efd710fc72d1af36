#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

#include "frame/ui/Voce.h"

namespace sagomi {

/// A step of a derivation: a quantity, how it comes about, its clause. Texts are UTF-8.
struct Passo {
    Dicitura nome;            ///< quantity; its object name is "LblNome" + radice
    const char* radice = "";  ///< of the object names: the value about axis i is "Lbl_" + radice + "_i"
    const char* letta = "";   ///< accessible name, which the axis follows
    const char* formula = ""; ///< subscripts in braces ("χ β{A} A f{y} / γ{M1}")
    const char* aiuto = "";   ///< tool-tip, which the axis and the clause follow
    const char* norma = "";
};

/// How a resistance comes about, line by line: name, formula, a value for each axis, clause.
class GrigliaDerivazione : public QWidget {
    Q_OBJECT
public:
    explicit GrigliaDerivazione(QWidget* parent = nullptr);

    /// Builds the grid; to be called once.
    /// @param assi  headings of the columns of values ("y-y", "z-z")
    void Compone(const std::vector<Passo>& passi, const QStringList& assi);
};

} // namespace sagomi
