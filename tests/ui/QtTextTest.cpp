#include "ui/QtText.h"

#include <gtest/gtest.h>

// Texts from the UTF-8 language files must reach the widgets unchanged and come back byte for byte.
TEST(QtText, RoundTripsNonAsciiText) {
    const std::string text = "Größe \xE2\x80\x93 Spiel \xE6\xBC\xA2";
    const QString shown = QtText::ToQt(text);
    EXPECT_EQ(shown, QString::fromUtf8("Größe – Spiel 漢"));
    EXPECT_EQ(QtText::FromQt(shown), text);
}
