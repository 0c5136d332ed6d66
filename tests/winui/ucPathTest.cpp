#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "winui/WinText.h"
#include "winui/controls/ucPath.h"

namespace {

// Puts `format` with `bytes` on the clipboard, alone.
void OnClipboard(UINT format, const std::string& bytes) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
    GlobalUnlock(memory);
    SetClipboardData(format, memory);
    CloseClipboard();
}

// A file list as the shell drags it: the list's header, then each name ended by a NUL, then one more.
std::string FileList(const std::vector<std::string>& files) {
    DROPFILES header{};
    header.pFiles = sizeof header;
    header.fWide = TRUE;
    std::wstring names;
    for (const std::string& file : files)
        names += WinText::Wide(file) + L'\0';
    names += L'\0';
    return std::string(reinterpret_cast<const char*>(&header), sizeof header) +
           std::string(reinterpret_cast<const char*>(names.data()), names.size() * sizeof(wchar_t));
}

ucPath::Offer OfferOnClipboard() {
    IDataObject* data = nullptr;
    EXPECT_EQ(OleGetClipboard(&data), S_OK);
    ucPath::Offer offer = ucPath::OfferOf(*data);
    data->Release();
    return offer;
}

// What a drag offers is read as the program's UTF-8, umlauts included: text as it is, every file of a list.
TEST(ucPathTest, ReadsTheTextAndTheFilesADragOffers) {
    const std::wstring text = L" Z:\\Spiele\\Größe\r\n";
    OnClipboard(CF_UNICODETEXT,
                std::string(reinterpret_cast<const char*>(text.c_str()), (text.size() + 1) * 2));
    ucPath::Offer offer = OfferOnClipboard();
    EXPECT_EQ(offer.text, " Z:\\Spiele\\Größe\r\n");
    EXPECT_TRUE(offer.files.empty());
    OnClipboard(CF_HDROP, FileList({"C:\\Spiele\\Größe\\tarvolin.exe", "C:\\b.pak"}));
    offer = OfferOnClipboard();
    EXPECT_FALSE(offer.text);
    EXPECT_EQ(offer.files, (std::vector<std::string>{"C:\\Spiele\\Größe\\tarvolin.exe", "C:\\b.pak"}));
}

}  // namespace
