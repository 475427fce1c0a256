#include "document/code_page.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <iconv.h>
#include <string>

namespace zeltrona::document {
namespace {

struct CharsetPage {
    std::int16_t charset;
    int page;
};
constexpr std::array<CharsetPage, 13> kPages = {{{128, 932},
                                                 {129, 949},
                                                 {134, 936},
                                                 {136, 950},
                                                 {161, 1253},
                                                 {162, 1254},
                                                 {163, 1258},
                                                 {177, 1255},
                                                 {178, 1256},
                                                 {186, 1257},
                                                 {204, 1251},
                                                 {222, 874},
                                                 {238, 1250}}};
constexpr int kWestern = 1252;

std::size_t asciiLength(std::string_view text) {
    const auto* end =
        std::find_if(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) > 127; });
    return static_cast<std::size_t>(end - text.begin());
}

bool isAscii(std::string_view text) {
    return asciiLength(text) == text.size();
}

// A conversion from one encoding to another, bit by bit into a text. On a system without the encoding it
// knows the characters that all have in common.
class Converter {
public:
    Converter(const std::string& to, const std::string& from)
        : m_handle(::iconv_open(to.c_str(), from.c_str())),
          m_open(reinterpret_cast<std::intptr_t>(m_handle) != -1) {} // iconv's own mark of failure
    ~Converter() {
        if (m_open) {
            ::iconv_close(m_handle);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// Takes what can be converted off the input's front and appends it; some sets hold a letter back for the
    /// accent that may follow it, which an empty input brings out.
    void convert(std::string_view& input, std::string& output) {
        if (!m_open) {
            const std::string_view common = input.substr(0, asciiLength(input));
            output.append(common);
            input.remove_prefix(common.size());
            return;
        }
        std::array<char, 1024> room{};
        char* from = const_cast<char*>(input.data()); // iconv only reads it
        std::size_t left = input.size();
        bool full = true;
        while (full) {
            char* to = room.data();
            std::size_t free = room.size();
            const bool whole = ::iconv(m_handle, input.data() == nullptr ? nullptr : &from, &left, &to, &free)
                               != static_cast<std::size_t>(-1);
            full = !whole && errno == E2BIG;
            output.append(room.data(), room.size() - free);
        }
        input.remove_prefix(input.size() - left);
    }
    void finish(std::string& output) {
        std::string_view nothing;
        convert(nothing, output);
    }

private:
    iconv_t m_handle;
    bool m_open;
};

std::string encodingOf(std::int16_t charset) {
    return "CP" + std::to_string(codePageOf(charset));
}

// The length of the first character of a text in UTF-8, told by its first byte and its followers.
std::size_t firstCharacterLength(std::string_view utf8) {
    std::size_t length = 1;
    while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0U) == 0x80U) {
        ++length;
    }
    return length;
}

std::string converted(std::string_view bytes, const std::string& encoding) {
    std::string text;
    Converter converter("UTF-8", encoding);
    while (!bytes.empty()) {
        converter.convert(bytes, text);
        if (!bytes.empty()) {
            converter.finish(text);
            text.append("\xEF\xBF\xBD");
            bytes.remove_prefix(1);
        }
    }
    converter.finish(text);
    return text;
}

// What each byte means, for the pages whose bytes stand alone: a board converts its labels at every redraw,
// and to set a conversion up costs more than to paint a label.
using ByteMeanings = std::array<std::string, 256>;

template<int Page> const ByteMeanings& meaningsOf() {
    static const ByteMeanings meanings = [] {
        ByteMeanings made;
        for (std::size_t byte = 0; byte < made.size(); ++byte) {
            made[byte] = converted(std::string(1, static_cast<char>(byte)), "CP" + std::to_string(Page));
        }
        return made;
    }();
    return meanings;
}

const ByteMeanings* meaningsOf(int page) {
    switch (page) {
    case 1250:
        return &meaningsOf<1250>();
    case 1251:
        return &meaningsOf<1251>();
    case 1252:
        return &meaningsOf<1252>();
    case 1253:
        return &meaningsOf<1253>();
    case 1254:
        return &meaningsOf<1254>();
    case 1257:
        return &meaningsOf<1257>();
    default:
        return nullptr;
    }
}

} // namespace

int codePageOf(std::int16_t charset) {
    const auto* found = std::find_if(kPages.begin(), kPages.end(), [charset](const CharsetPage& entry) {
        return entry.charset == charset;
    });
    return found == kPages.end() ? kWestern : found->page;
}

std::string toUtf8(std::string_view bytes, std::int16_t charset) {
    if (isAscii(bytes)) {
        return std::string(bytes);
    }
    const ByteMeanings* meanings = meaningsOf(codePageOf(charset));
    if (meanings == nullptr) {
        return converted(bytes, encodingOf(charset));
    }
    std::string text;
    for (const char byte : bytes) {
        text += (*meanings)[static_cast<unsigned char>(byte)];
    }
    return text;
}

Encoded fromUtf8(std::string_view utf8, std::int16_t charset) {
    Encoded encoded;
    if (isAscii(utf8)) {
        encoded.bytes = utf8;
        return encoded;
    }
    Converter converter(encodingOf(charset), "UTF-8");
    while (!utf8.empty()) {
        converter.convert(utf8, encoded.bytes);
        if (!utf8.empty()) {
            converter.finish(encoded.bytes);
            encoded.bytes.push_back('?');
            encoded.complete = false;
            utf8.remove_prefix(firstCharacterLength(utf8));
        }
    }
    converter.finish(encoded.bytes);
    return encoded;
}

} // namespace zeltrona::document
