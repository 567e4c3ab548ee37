#include "machines/virtual/boucle_virtuelle.h"

#include <gtest/gtest.h>

using namespace plateforme;

TEST(BoucleVirtuelle, RunsOrdersInOrderOfTimeAndLetsWhatComesDueMeanwhileWait) {
    boucle_virtuelle b;
    std::string journal;
    b.programme(20, "", [&] { journal += "b"; });
    b.programme(10, "", [&] {
        journal += "a";
        b.attend(100);
        b.programme(0, "", [&] { journal += "d"; });
    });
    b.programme(20, "", [&] { journal += "c"; });
    b.attend(15);
    b.cede();
    EXPECT_EQ(journal, "a") << "b and c came due after this yield began";
    b.cede();
    EXPECT_EQ(journal, "abcd");
    EXPECT_EQ(b.temps(), 115);
}
