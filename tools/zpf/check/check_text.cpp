#include "tools/zpf/check/check_text.h"

#include "document/code_page.h"
#include "tools/zpf/json_text.h"

namespace zeltrona::zpf {

std::string checkAsText(std::string_view path, const CheckResult& result, std::int16_t charset) {
    std::string text;
    for (const Finding& finding : result.findings) {
        text.append(path).append(":");
        if (finding.line > 0) {
            text.append(std::to_string(finding.line)).append(":");
        }
        if (!finding.section.empty()) {
            text.append(" [").append(document::toUtf8(finding.section, charset)).append("]");
        }
        if (!finding.key.empty()) {
            text.append(" ").append(document::toUtf8(finding.key, charset)).append(":");
        }
        text.append(" ").append(finding.text).append(" (").append(findingName(finding.kind)).append(")\n");
    }
    return text;
}

std::string checkAsJson(std::string_view path, const CheckResult& result, std::int16_t charset) {
    JsonText json;
    json.open('{').key("play").text(path).key("frames").number(result.frames).key("findings").open('[');
    for (const Finding& finding : result.findings) {
        json.open('{').key("kind").text(findingName(finding.kind));
        json.key("line").number(static_cast<std::int64_t>(finding.line));
        json.key("section").text(document::toUtf8(finding.section, charset));
        json.key("key").text(document::toUtf8(finding.key, charset));
        json.key("text").text(finding.text).close('}');
    }
    return json.close(']').close('}').take();
}

} // namespace zeltrona::zpf
