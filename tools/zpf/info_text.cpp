#include "document/code_page.h"
#include "document/session.h"
#include "tools/zpf/json_text.h"
#include "tools/zpf/play_info.h"

#include <algorithm>
#include <array>

namespace zeltrona::zpf {
namespace {

struct CountName {
    std::size_t FrameInfo::*count;
    const char* one;
    const char* many;
};
constexpr std::array<CountName, 8> kCounts{{{&FrameInfo::offence, "offence", "offence"},
                                            {&FrameInfo::defence, "defence", "defence"},
                                            {&FrameInfo::balls, "ball", "balls"},
                                            {&FrameInfo::paths, "path", "paths"},
                                            {&FrameInfo::lines, "line", "lines"},
                                            {&FrameInfo::triangles, "triangle", "triangles"},
                                            {&FrameInfo::shadows, "shadow", "shadows"},
                                            {&FrameInfo::texts, "text", "texts"}}};

std::string join(const std::vector<std::string>& parts, std::string_view between) {
    std::string text;
    for (const std::string& part : parts) {
        text.append(text.empty() ? std::string_view() : between).append(part);
    }
    return text;
}

std::string courtName(std::int16_t court) {
    if (!document::isSmallCourt(court) && !document::isBigCourt(court)) {
        return "no picture";
    }
    const char* markings = court <= 3   ? "today's international markings"
                           : court <= 6 ? "former international markings"
                                        : "North American professional markings";
    return std::string(document::isBigCourt(court) ? "whole court, " : "half court, ") + markings;
}

/// "  court     1, half court"; nothing for an empty value.
void appendRow(std::string& text, std::string name, const std::string& value) {
    constexpr std::size_t kColumn = 10;
    if (!value.empty()) {
        name.resize(std::max(kColumn, name.size() + 1), ' ');
        text.append("  ").append(name).append(value).append("\n");
    }
}

std::string countsOf(const FrameInfo& frame) {
    std::vector<std::string> parts;
    for (const CountName& name : kCounts) {
        if (const std::size_t count = frame.*name.count; count > 0) {
            parts.push_back(std::to_string(count) + " " + (count == 1 ? name.one : name.many));
        }
    }
    return parts.empty() ? "empty" : join(parts, ", ");
}

void writeTexts(JsonText& json, std::string_view key, const std::vector<std::string>& texts) {
    json.key(key).open('[');
    for (const std::string& text : texts) {
        json.text(text);
    }
    json.close(']');
}

void writeFrame(JsonText& json, const FrameInfo& frame) {
    json.open('{');
    for (const CountName& name : kCounts) {
        json.key(name.many).number(static_cast<std::int64_t>(frame.*name.count));
    }
    json.key("note").text(frame.note).close('}');
}

} // namespace

std::string infoAsText(std::string_view path, const PlayInfo& info) {
    std::string text(path);
    text.append("\n");
    appendRow(text, "title", info.title);
    appendRow(text, "heading", join(info.heading, " / "));
    appendRow(text, "court", std::to_string(info.court) + ", " + courtName(info.court));
    appendRow(text, "players", info.bodies ? "bodies" : "circles");
    appendRow(text, "offence", join(info.offence, ", "));
    appendRow(text, "defence", join(info.defence, ", "));
    appendRow(text, "font",
              info.font + ", character set " + std::to_string(info.charset) + " (code page "
                  + std::to_string(document::codePageOf(info.charset)) + ")");
    appendRow(text, "frames", std::to_string(info.frames.size()));
    for (std::size_t frame = 0; frame < info.frames.size(); ++frame) {
        appendRow(text, "frame " + std::to_string(frame + 1), countsOf(info.frames[frame]));
        appendRow(text, "", info.frames[frame].note);
    }
    return text;
}

std::string infoAsJson(std::string_view path, const PlayInfo& info) {
    JsonText json;
    json.open('{').key("play").text(path).key("title").text(info.title);
    writeTexts(json, "heading", info.heading);
    json.key("court").number(info.court).key("bodies").flag(info.bodies);
    writeTexts(json, "offence", info.offence);
    writeTexts(json, "defence", info.defence);
    json.key("font").text(info.font).key("charset").number(info.charset).key("frames").open('[');
    for (const FrameInfo& frame : info.frames) {
        writeFrame(json, frame);
    }
    return json.close(']').close('}').take();
}

} // namespace zeltrona::zpf
