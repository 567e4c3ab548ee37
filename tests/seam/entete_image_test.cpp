#include "seam/entete_image.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(EnteteImage, RefusesWhatIsNoPictureOrCutShort) {
    for (const auto& octets :
         {""s, "GIF89a\x01"s, "pas une image"s, "GIF89a\0\0\0\0"s, "\xFF\xD8"s, "\xFF\xD8\xFF\xE0\x00\x01"s,
          "\xFF\xD8\xFF\xC0\x00\x11\x08\x01"s, "\xFF\xD8\xFF\xC0\x00\x04\x08\x01"s})
        EXPECT_FALSE(plateforme::lit_entete(octets));
}
