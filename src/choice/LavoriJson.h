#pragma once

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace sagomi {

/// Reads jobs, each a flat JSON object: the names are those of the options without their dashes, true stands
/// for an option without value, a list for names with commas between; what is false or null is left out. My1
/// and Mz1 stand for My and Mz.
class LavoriJson {
public:
    LavoriJson();

    /// The arguments that a job stands for. Throws ErroreUso for what is no such object.
    [[nodiscard]] std::vector<std::string> Argomenti(const std::string& riga) const;

private:
    struct Chiude {
        void operator()(sqlite3* db) const;
    };
    std::unique_ptr<sqlite3, Chiude> db_; ///< its JSON functions are the parser
};

} // namespace sagomi
