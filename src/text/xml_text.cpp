#include "text/xml_text.h"

namespace zolv {

std::string XmlText(std::string_view text, std::string_view kept) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&': escaped += "&amp;"; break;
            case '<': escaped += "&lt;"; break;
            case '>': escaped += "&gt;"; break;
            case '"': escaped += "&quot;"; break;
            default:
                if (static_cast<unsigned char>(c) >= 0x20 || kept.find(c) != std::string_view::npos) escaped += c;
        }
    }
    return escaped;
}

}  // namespace zolv
