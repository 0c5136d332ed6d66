// Feeds arbitrary bytes to the settings-file reader. Besides not crashing, the reader must give back every
// byte it read when nothing changed, and a value it wrote must read back.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "storage/IniDocument.h"
#include "storage/IniEncoding.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    DecodedIni decoded = DecodeIni(bytes);
    IniDocument document = IniDocument::Parse(decoded.text);
    if (document.Serialize() != decoded.text)
        std::abort();

    (void)document.Value("OPTIONS", "LANGUAGE");
    document.SetValue("Fuzz", "Key", "value");
    IniDocument reread = IniDocument::Parse(document.Serialize());
    if (reread.Value("fuzz", "KEY") != "value")
        std::abort();

    reread.DeleteKey("fuzz", "key");
    (void)reread.DeleteSection("OPTIONS");
    // Untouched text is written back byte for byte in the encoding it came in.
    IniEncoding encoding = decoded.encoding;
    if ((encoding == IniEncoding::Narrow || encoding == IniEncoding::Windows1252) &&
        EncodeIni(decoded.text, encoding) != bytes)
        std::abort();
    (void)EncodeIni(reread.Serialize(), decoded.encoding);
    return 0;
}
