#include "bench/sample_play.h"

namespace zeltrona::bench {
namespace {

class Lines {
public:
    void header(const std::string& name) { m_text.append("[").append(name).append("]\r\n"); }
    void key(const std::string& name, const std::string& value) {
        m_text.append(name).append("=").append(value).append("\r\n");
    }
    std::string take() { return std::move(m_text); }

private:
    std::string m_text;
};

std::string points(int count, int start) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += std::to_string(start % 300 + i * 3) + ".5," + std::to_string(40 + i * 2) + ".25,";
    }
    return text;
}

void addSide(Lines& lines, const std::string& side, int frame) {
    for (int i = 0; i < 12; ++i) {
        const std::string slot = std::to_string(i);
        lines.key(side + slot,
                  std::to_string(10 + (frame + i * 17) % 300) + "," + std::to_string(5 + i * 20));
        lines.key("angle" + side + slot, std::to_string(i * 15));
        lines.key("body" + side + slot, std::to_string(i % 4));
    }
}

void addMarks(Lines& lines, int frame) {
    for (int i = 0; i < 3; ++i) {
        const std::string index = std::to_string(i);
        const std::string place =
            std::to_string(20 + (frame + i) % 200) + "," + std::to_string(30 + i * 40) + ",";
        lines.key("Ball" + index, place);
        lines.key("Triangle" + index, "255," + place);
        lines.key("Line" + index, "4,0,255," + points(6, frame + i));
        lines.key("Shadow" + index, "12632256," + place + "70,30,");
        lines.key("txtPic" + index, "Screen," + place + "Arial,10,0,1,0,0,0,");
    }
}

} // namespace

std::string sampleFrame(int frame) {
    Lines lines;
    lines.header("Frame" + std::to_string(frame));
    lines.key("frame", std::to_string(frame));
    addSide(lines, "off", frame);
    addSide(lines, "def", frame);
    for (int path = 0; path < 5; ++path) {
        lines.key("off" + std::to_string(path) + "curve", points(25, frame + path));
    }
    lines.key("Ball0curve", points(25, frame));
    addMarks(lines, frame);
    return lines.take();
}

std::string samplePlay(int frames) {
    Lines lines;
    lines.header("Config");
    for (const char* const key : {"colorOff", "colorDef", "colorOffFont", "colorDefFont", "colorLine"}) {
        lines.key(key, "16711680");
    }
    lines.key("line", "2");
    lines.key("font", "Arial,238,");
    for (int i = 0; i < 12; ++i) {
        lines.key("txtOff" + std::to_string(i), std::to_string(i + 4));
        lines.key("skinOff" + std::to_string(i), "12632256");
        lines.key("txtDef" + std::to_string(i), std::to_string(i + 4));
        lines.key("skinDef" + std::to_string(i), "8421504");
    }
    lines.key("court", "1");
    lines.key("txtTitle", "Horns set");
    for (int frame = 1; frame <= frames; ++frame) {
        lines.key("Notes" + std::to_string(frame), "Cut to the corner, then screen away");
    }
    std::string text = lines.take();
    for (int frame = 1; frame <= frames; ++frame) {
        text += sampleFrame(frame);
    }
    return text;
}

} // namespace zeltrona::bench
