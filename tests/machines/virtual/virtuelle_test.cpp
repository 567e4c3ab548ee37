#include "machines/virtual/boucle_virtuelle.h"
#include "machines/virtual/entete_image.h"

#include <gtest/gtest.h>

using namespace plateforme;
using namespace std::string_literals;

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

TEST(BoucleVirtuelle, AMotionThatNothingCanEndIsGivenUp) {
    boucle_virtuelle b;
    b.programme(30LL * 3600 * 1'000'000'000, "", [] {});
    for (int i = 0; i < 31; ++i) {
        b.attend(3600LL * 1'000'000'000);
        EXPECT_NO_THROW(b.cede()) << "an order was waiting until now";
    }
    EXPECT_THROW(
        for (int i = 0; i < 26; ++i) {
            b.attend(3600LL * 1'000'000'000);
            b.cede();
        },
        mouvement_sans_fin);
}

TEST(EnteteImage, TellsSizeAndDensity) {
    const auto gif = lit_entete("GIF89a\x50\x01\x66\x00...."s);
    ASSERT_TRUE(gif);
    EXPECT_EQ(gif->largeur, 336);
    EXPECT_EQ(gif->hauteur, 102);
    EXPECT_EQ(gif->ppp, 96);
    const auto jpeg = [](const std::string& densite, const std::string& suite) {
        return "\xFF\xD8\xFF\xE0\x00\x10JFIF\0\x01\x02"s + densite + "\0\0"s + suite;
    };
    const auto cadre = "\xFF\xFE\x00\x05"
                       "ab\0\xFF\xC2\x00\x0B\x08\x01\x2C\x02\x58\x01\x01\x11\x00"s;
    const auto pouce = lit_entete(jpeg("\x01\x00\x48\x00\x48"s, cadre));
    ASSERT_TRUE(pouce);
    EXPECT_EQ(pouce->largeur, 600);
    EXPECT_EQ(pouce->hauteur, 300);
    EXPECT_EQ(pouce->ppp, 72);
    EXPECT_NEAR(lit_entete(jpeg("\x02\x00\x64\x00\x64"s, cadre))->ppp, 254, 1e-9);
    EXPECT_EQ(lit_entete(jpeg("\x00\x00\x01\x00\x01"s, cadre))->ppp, 96);
}

TEST(EnteteImage, RefusesWhatIsNoPictureOrCutShort) {
    for (const auto& octets :
         {""s, "GIF89a\x01"s, "pas une image"s, "GIF89a\0\0\0\0"s, "\xFF\xD8"s, "\xFF\xD8\xFF\xE0\x00\x01"s,
          "\xFF\xD8\xFF\xC0\x00\x11\x08\x01"s, "\xFF\xD8\xFF\xC0\x00\x04\x08\x01"s})
        EXPECT_FALSE(lit_entete(octets));
}
