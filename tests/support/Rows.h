#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace blunko::test {

/// The rows of a text beside the tests, "what is done > what comes of it"; remarks begin with #.
inline std::vector<std::pair<std::string, std::string>> RowsOf(const std::string& File) {
  std::vector<std::pair<std::string, std::string>> Rows;
  std::ifstream Text(TBK_TEST_FILES "/" + File);
  for (std::string Line; std::getline(Text, Line);) {
    const auto Middle = Line.find(" >");
    if (!Line.starts_with('#'))
      Rows.emplace_back(Line.substr(0, Middle), Line.substr(std::min(Middle + 3, Line.size())));
  }
  EXPECT_FALSE(Rows.empty()) << File;
  return Rows;
}

}  // namespace blunko::test
