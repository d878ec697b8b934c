#pragma once

#include <algorithm>
#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace blunko::test {

/// The rows of a text beside the tests, "what is done > what comes of it": both, and the remark above them.
inline std::vector<std::array<std::string, 3>> RowsOf(const std::string& File) {
  std::vector<std::array<std::string, 3>> Rows;
  std::ifstream Text(TBK_TEST_FILES "/" + File);
  for (std::string Line, Remark; std::getline(Text, Line);) {
    const auto Middle = Line.find(" >");
    EXPECT_TRUE(Line.starts_with('#') || Middle != std::string::npos) << Line;
    if (Line.starts_with('#')) Remark = Line;
    if (Remark != Line)
      Rows.push_back({Line.substr(0, Middle), Line.substr(std::min(Middle + 3, Line.size())), Remark});
  }
  EXPECT_FALSE(Rows.empty()) << File;
  return Rows;
}

}  // namespace blunko::test
