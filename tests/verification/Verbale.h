#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The record of what the program gives beside what was published, beside a second method, and beside the
/// theory that a settled rule departs from. The tests fill it; the verification manual is made from it.
namespace sagomi::verifica {

/// Chapters of the published figures, in their order.
enum class Capitolo {
    sagomi,
    classi,
    resistenza,
    instabilita,
    svergolamento,
    interazione,
    collegamenti,
    giunti,
    miste,
    critici
};

/// One figure held against another.
struct Confronto {
    std::string grandezza, unita;
    std::string riferimento; ///< as printed, point for the decimals
    double atteso = 0;       ///< the same as a number
    double valore = 0;       ///< the program's
    double tolleranza = 0;   ///< of the difference, relative
    std::string nota;        ///< why they differ, in Italian
};

/// Figures of one place of a document.
class Esempio {
public:
    /// @param fonte  name of the source
    /// @param luogo  example or table, page where it is known
    /// @param dati   what is given
    Esempio(Capitolo capitolo, std::string_view fonte, std::string luogo, std::string dati);

    /// Holds the program's value against the printed figure; fails where the difference leaves the tolerance,
    /// and where one above 1 % is not explained.
    /// @param pubblicato  the figure as it is printed, with a decimal point
    Esempio& Confronta(std::string grandezza, std::string unita, std::string_view pubblicato, double valore,
                       double tolleranza, std::string nota = {});

private:
    std::size_t indice_;
};

/// Figures of the program beside those of a second method, computed by the test.
class Controprova {
public:
    Controprova(std::string titolo, std::string metodo, std::string dati);
    Controprova& Confronta(std::string grandezza, std::string unita, double secondo, double valore,
                           double tolleranza, std::string nota = {});

private:
    std::size_t indice_;
};

/// What a greater value of a quantity means for safety.
enum class Verso { resistenza, sollecitazione, neutro };

/// A settled rule of the program that departs from theory or from the code of today.
class Regola {
public:
    /// @param id  name of the file of its prose in docs/verification/regole
    explicit Regola(std::string id);

    /// A case: the value of theory or of today's code, that of the program, and what more of it means.
    Regola& Caso(std::string dati, std::string grandezza, std::string unita, double teoria, double programma,
                 Verso verso);
    /// A number that the prose quotes as {{nome}}.
    Regola& Numero(std::string nome, double valore, int decimali);

private:
    std::size_t indice_;
};

/// Curves of the program and of what it is held against, drawn below a rule or a second method.
class Grafico {
public:
    using Punti = std::vector<std::pair<double, double>>;

    /// @param dove        id of the rule, or title of the second method
    /// @param didascalia  caption
    /// @param x, y        names of the axes
    Grafico(std::string dove, std::string didascalia, std::string x, std::string y);
    Grafico& Serie(std::string nome, Punti punti);

private:
    std::size_t indice_;
};

/// Share by which the value departs from the reference; of a reference of 0 the difference itself.
double Scarto(double riferimento, double valore);

/// A printed figure as a number.
double Cifra(std::string_view testo);

} // namespace sagomi::verifica
