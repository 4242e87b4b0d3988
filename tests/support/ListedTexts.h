#pragma once

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <string>
#include <vector>

namespace kestrel::test {

enum Column { What, Key, Parent, Kind, English, Chinese, Shortcut, Picture, Flag, kColumns };
using Row = std::array<std::string, kColumns>;

// The product's own list of every text, one a line, columns parted by tabs.
inline std::vector<Row> ListedTexts(const std::string& what) {
    std::ifstream file(TEST_DATA "/../i18n/captions.tsv");
    std::vector<Row> rows;
    for (std::string line; std::getline(file, line);) {
        Row row;
        for (std::string& column : row) {
            column = line.substr(0, line.find('\t'));
            line.erase(0, std::min(line.size(), column.size() + 1));
        }
        for (std::string* text : {&row[English], &row[Chinese]})
            if (const auto tab = text->find("\\t"); tab != std::string::npos)
                text->replace(tab, 2, "\t");
        if (row[What] == what) rows.push_back(row);
    }
    EXPECT_FALSE(rows.empty()) << what;
    return rows;
}

}  // namespace kestrel::test
