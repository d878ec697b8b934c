#include <gtest/gtest.h>

#include "storage/Numbers.h"
#include "storage/RollerLists.h"

namespace blunko::test {

TEST(DayNumber, CountsFromItsFirstDay) { EXPECT_EQ(DayNumber(QDate(2006, 1, 1)), "38718"); }

TEST(RollerLists, AreReadFromAWholeTextOnly) {
  const auto With = [](QByteArray Line) {
    return RollerLists::Default().Text().replace("Georgiana\244\061050\r\n", Line.replace('|', '\xA4'));
  };
  for (const char* Bad : {"", "Tam|1\r\nTam|1\r\n", "Georgiana|10", "Bea1300\r\n", "B|ea|1300\r\n", "Bea|-130\r\n",
                          "Bea|+130\r\n", "Bea|13:0\r\n", "Bea|000130\r\n", "Bea|32768\r\n", "Bea|1050\n"}) {
    EXPECT_FALSE(RollerLists::OfText(With(Bad))) << Bad;
  }
  EXPECT_TRUE(RollerLists::OfText(With("|00009\r\n")));
  EXPECT_EQ(ScrambleText("\x01\x7F\x80\xFE"), QByteArray("\x81\xFF\x01\x7F"));
  EXPECT_EQ(UnscrambleText(QByteArray("\x81\xFF\x01\x7F\0", 5)), QByteArray("\x01\x7F\x80\xFE\x7F"));
}

}  // namespace blunko::test
