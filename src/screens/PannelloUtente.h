#pragma once

#include <QByteArray>

#include "frame/ui/GruppoVoci.h"

namespace sagomi {

/// What can be done with the user's own sections. Hidden until their sheet is in force.
class ComandiUtente : public QGroupBox {
    Q_OBJECT
public:
    explicit ComandiUtente(QWidget* parent = nullptr);
};

/// The plates of a section of the user's own, with the commands that take them over or leave them.
class DatiUtente : public GruppoVoci {
    Q_OBJECT
public:
    explicit DatiUtente(QWidget* parent = nullptr);

    /// Builds the boxes of a main screen; to be called once.
    void ImpostaSchermo(const QByteArray& nome);
};

} // namespace sagomi
