#include "bench/hostile_play.h"

#include "document/frame_store.h"

#include <functional>

namespace zeltrona::bench {
namespace {

using Key = std::function<std::string(int index)>;

std::string number(int value) {
    return std::to_string(value);
}

/// Keys until the file has its size, at most as many as an index can name.
std::string playOf(std::size_t size, const std::string& config, const Key& key) {
    std::string play = "[Config]\r\ncourt=1\r\ncourtTexture=1\r\nbodyType=1\r\ncolorLine=255\r\n" + config
                       + "[Frame2]\r\nframe=2\r\n[Frame1]\r\nframe=1\r\n";
    for (int index = 0; index <= 32767 && play.size() < size; ++index) {
        play += key(index) + "\r\n";
    }
    return play;
}

/// A line of as many points as a read takes in; `corners` go round.
Key longLine(const std::string& start, const std::vector<std::string>& corners) {
    return [=](int index) {
        std::string value = start;
        for (std::size_t i = 0; value.size() < 6960; ++i) {
            value += corners[i % corners.size()] + ",";
        }
        return "Line" + number(index) + "=" + value;
    };
}

Key line(const std::string& value) {
    return [=](int index) { return "Line" + number(index) + "=" + value; };
}

class Collection {
public:
    explicit Collection(std::size_t size) : m_size(size) {}
    void add(const std::string& name, const std::string& config, const Key& key) {
        plays.push_back({name, playOf(m_size, config, key)});
    }
    std::vector<HostilePlay> plays;

private:
    std::size_t m_size;
};

void addLines(Collection& all) {
    const std::vector<std::string> zigzag{"9,9", "9,300"};
    const std::vector<std::string> cross{"0,0", "360,0", "0,330", "360,330"};
    const std::vector<std::string> far{"0,0", "99999,0", "0,300", "99999,9"};
    all.add("waves", "line=2\r\n", longLine("2,0,1,", cross));
    all.add("waves-under-a-wide-pen", "line=20\r\n", longLine("2,0,1,", cross));
    all.add("waves-under-a-huge-pen", "line=300\r\n", longLine("2,0,1,", cross));
    all.add("far-waves-under-a-huge-pen", "line=300\r\n", longLine("2,0,1,", far));
    all.add("dashes-under-a-huge-pen", "line=300\r\n", longLine("1,0,1,", zigzag));
    all.add("double-lines-under-a-huge-pen", "line=700\r\n", longLine("4,0,1,", zigzag));
    all.add("lines-under-the-widest-pen", "line=9999\r\n", longLine("0,0,1,", zigzag));
    all.add("far-curves-under-the-widest-pen", "line=9999\r\n", longLine("4,1,1,", far));
    all.add("curves-under-a-huge-pen", "line=700\r\n", longLine("4,1,1,", cross));
    all.add("double-curves", "line=1\r\n", longLine("4,1,1,", cross));
    all.add("dashes-that-come-back-from-afar", "line=1\r\n", line("1,1,1,0,0,199999,0,0,300,"));
    all.add("waves-that-come-back-from-afar", "line=2\r\n", line("2,1,1,0,0,199999,0,0,300,"));
    all.add("dashes-to-the-end-of-the-world", "line=1\r\n", line("1,0,1,0,0,1000000000,1000000000,"));
    all.add("lines-of-one-point", "line=9\r\n", line("0,0,1,9,9,"));
}

void addMarks(Collection& all) {
    all.add("shadows", "", [](int i) { return "Shadow" + number(i) + "=1,0,0,360,330,"; });
    all.add("triangles", "", [](int i) { return "Triangle" + number(i) + "=1,99,99,"; });
    all.add("balls", "", [](int i) { return "Ball" + number(i) + "=99,99,"; });
    all.add("texts-of-all-sizes", "",
            [](int i) { return "txtPic" + number(i) + "=W,0,300,Arial," + number(8 + i % 50) + ","; });
    all.add("large-texts", "",
            [](int i) { return "txtPic" + number(i) + "=W,0,300,Arial," + number(200 + i) + ","; });
    all.add("texts-in-fonts-of-no-machine", "",
            [](int i) { return "txtPic" + number(i) + "=W,0,300,A" + number(i) + ",20,"; });
    all.add("long-texts", "",
            [](int i) { return "txtPic" + number(i) + "=" + std::string(6900, 'W') + ",0,300,Arial,48,"; });
    all.add("japanese-texts", "font=Arial,128,\r\n",
            [](int i) { return "txtPic" + number(i) + "=\x81\x9B" + number(i) + ",0,300,Arial,9,"; });
}

void addPathsAndKeys(Collection& all) {
    const auto path = [](const std::string& owner) {
        std::string value;
        while (value.size() < 6990) {
            value += "9,9,";
        }
        return owner + "curve=" + value;
    };
    all.add("paths-of-balls", "line=9\r\n", [=](int i) { return path("ball" + number(i % 101)); });
    all.add("paths-of-players", "", [=](int i) { return path("off" + number(i % 12)); });
    all.add("frames", "", [](int i) { return "[Frame" + number(i + 3) + "]\r\nframe=" + number(i + 3); });
    all.add("keys-without-values", "", [](int i) { return number(i) + "="; });
    all.add("one-key-again-and-again", "", [](int) { return std::string("off0=1,1"); });
    all.add("headers", "", [](int) { return std::string("["); });
}

} // namespace

std::vector<HostilePlay> hostilePlays(std::size_t size) {
    Collection all(size);
    addLines(all);
    addMarks(all);
    addPathsAndKeys(all);
    return all.plays;
}

} // namespace zeltrona::bench
