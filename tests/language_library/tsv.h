#pragma once
// Reads tables of expected facts, tests/language_library/data/*.tsv: a head, then a row a line.
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tsv {

inline std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream from(line);
    for (std::string field; std::getline(from, field, '\t');) fields.push_back(field);
    return fields;
}

inline std::vector<std::vector<std::string>> rows(const std::string& name) {
    std::ifstream file(FERNWICK_SOURCE_DIR "/tests/language_library/data/" + name);
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) rows.push_back(fieldsOf(line));
    return rows;
}

} // namespace tsv
