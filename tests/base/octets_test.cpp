#include "base/octets.h"

#include <gtest/gtest.h>

TEST(Octets, ACharacterWithoutAByteBecomesAQuestionMark) {
    EXPECT_EQ(base::de_1252("\xE9t\xE9 \x80 \x9C"), "été € œ");
    EXPECT_EQ(base::vers_1252("α Vég\u00e9tal 🔭 \u0080"), "? V\xE9g\xE9tal ? ?");
    for (const auto& [malforme, attendu] : {std::pair{"\xC3", "?"},
                                            {"\xE2\x82", "??"},
                                            {"\xFF"
                                             "a",
                                             "?a"},
                                            {"\xC3(", "?("}})
        EXPECT_EQ(base::vers_1252(malforme), attendu);
}
