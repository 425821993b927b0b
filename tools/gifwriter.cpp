// A small GIF89a encoder for the theme's animations (Qt's image plug-ins read GIFs but
// cannot write them).
//
// Frames are drawn with antialiasing on transparency and then flattened for the dark
// theme: a pixel with little coverage becomes transparent, every other pixel is blended
// over the theme background and made opaque. The colours of all frames are quantised
// (median cut) into one global palette of 255 colours plus the transparent index 255.
// The file loops forever (NETSCAPE2.0), each frame carries its delay and transparency
// (graphic control extension, disposal "restore to background"), and the pixels are
// LZW-compressed with 8-bit minimum code size, restarting with a clear code before the
// 12-bit table fills.
#include "themeimages.h"

#include <QFile>
#include <map>
#include <algorithm>
#include <array>
#include <cstdint>
#include <unordered_map>

namespace themeimages {

namespace {

constexpr int kTransparentIndex = 255;
constexpr int kPaletteColours = 255;
constexpr int kCoverageThreshold = 48; // alpha below this is transparent
const QColor kThemeBackground(0x10, 0x13, 0x17);

// ---------------------------------------------------------------------------
// Frames

QImage renderFrame(Image const& image, int frame)
{
    QImage img(image.size, QImage::Format_ARGB32);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    if (image.drawFrame)
        image.drawFrame(p, QSizeF(image.size), frame);
    else if (image.draw)
        image.draw(p, QSizeF(image.size));
    p.end();
    // Flatten: opaque colours blended over the background, or transparent.
    for (int y = 0; y < img.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
        for (int x = 0; x < img.width(); ++x) {
            QRgb const c = line[x];
            int const a = qAlpha(c);
            if (a < kCoverageThreshold) {
                line[x] = 0;
                continue;
            }
            auto blend = [a](int fg, int bg) { return (fg * a + bg * (255 - a) + 127) / 255; };
            line[x] = qRgba(blend(qRed(c), kThemeBackground.red()), blend(qGreen(c), kThemeBackground.green()),
                            blend(qBlue(c), kThemeBackground.blue()), 255);
        }
    }
    return img;
}

// ---------------------------------------------------------------------------
// Palette: median cut over the frames' opaque colours

struct Box
{
    std::vector<std::pair<QRgb, int>> colours; // colour, pixel count
    int range(int channel) const
    {
        int lo = 255, hi = 0;
        for (auto const& c : colours) {
            int const v = channel == 0 ? qRed(c.first) : channel == 1 ? qGreen(c.first) : qBlue(c.first);
            lo = std::min(lo, v);
            hi = std::max(hi, v);
        }
        return colours.empty() ? 0 : hi - lo;
    }
};

std::vector<QRgb> buildPalette(std::vector<QImage> const& frames)
{
    std::map<QRgb, int> histogram; // ordered: the palette is the same on every run
    for (QImage const& f : frames)
        for (int y = 0; y < f.height(); ++y) {
            auto const* line = reinterpret_cast<QRgb const*>(f.constScanLine(y));
            for (int x = 0; x < f.width(); ++x)
                if (qAlpha(line[x]) != 0)
                    ++histogram[line[x]];
        }
    std::vector<QRgb> palette;
    if (histogram.size() <= kPaletteColours) {
        for (auto const& [colour, count] : histogram)
            palette.push_back(colour);
        return palette;
    }
    std::vector<Box> boxes(1);
    for (auto const& [colour, count] : histogram)
        boxes[0].colours.emplace_back(colour, count);
    while (int(boxes.size()) < kPaletteColours) {
        // Split the box with the widest channel range.
        int best = -1, bestRange = 0, bestChannel = 0;
        for (int i = 0; i < int(boxes.size()); ++i) {
            if (boxes[i].colours.size() < 2)
                continue;
            for (int ch = 0; ch < 3; ++ch) {
                int const r = boxes[i].range(ch);
                if (r > bestRange) {
                    bestRange = r;
                    best = i;
                    bestChannel = ch;
                }
            }
        }
        if (best < 0)
            break;
        auto& cs = boxes[best].colours;
        auto channel = [bestChannel](QRgb c) {
            return bestChannel == 0 ? qRed(c) : bestChannel == 1 ? qGreen(c) : qBlue(c);
        };
        std::stable_sort(cs.begin(), cs.end(), [&](auto const& a, auto const& b) { return channel(a.first) < channel(b.first); });
        // Median by pixel count, keeping at least one colour on each side.
        long total = 0;
        for (auto const& c : cs)
            total += c.second;
        long acc = 0;
        size_t cut = 1;
        for (size_t i = 0; i + 1 < cs.size(); ++i) {
            acc += cs[i].second;
            cut = i + 1;
            if (acc * 2 >= total)
                break;
        }
        Box upper;
        upper.colours.assign(cs.begin() + long(cut), cs.end());
        cs.resize(cut);
        boxes.push_back(std::move(upper));
    }
    for (Box const& b : boxes) {
        long r = 0, g = 0, bl = 0, n = 0;
        for (auto const& c : b.colours) {
            r += long(qRed(c.first)) * c.second;
            g += long(qGreen(c.first)) * c.second;
            bl += long(qBlue(c.first)) * c.second;
            n += c.second;
        }
        if (n > 0)
            palette.push_back(qRgb(int(r / n), int(g / n), int(bl / n)));
    }
    return palette;
}

class IndexMapper
{
public:
    explicit IndexMapper(std::vector<QRgb> const& palette) : m_palette(palette) {}
    uint8_t index(QRgb c)
    {
        if (qAlpha(c) == 0)
            return kTransparentIndex;
        auto it = m_cache.find(c);
        if (it != m_cache.end())
            return it->second;
        int best = 0;
        long bestDist = -1;
        for (int i = 0; i < int(m_palette.size()); ++i) {
            long const dr = qRed(c) - qRed(m_palette[i]);
            long const dg = qGreen(c) - qGreen(m_palette[i]);
            long const db = qBlue(c) - qBlue(m_palette[i]);
            long const dist = 3 * dr * dr + 4 * dg * dg + 2 * db * db;
            if (bestDist < 0 || dist < bestDist) {
                bestDist = dist;
                best = i;
            }
        }
        m_cache.emplace(c, uint8_t(best));
        return uint8_t(best);
    }

private:
    std::vector<QRgb> const& m_palette;
    std::unordered_map<QRgb, uint8_t> m_cache;
};

// ---------------------------------------------------------------------------
// LZW

class BitWriter
{
public:
    void write(int code, int bits)
    {
        m_acc |= uint32_t(code) << m_count;
        m_count += bits;
        while (m_count >= 8) {
            m_bytes.push_back(char(m_acc & 0xff));
            m_acc >>= 8;
            m_count -= 8;
        }
    }
    QByteArray finish()
    {
        if (m_count > 0)
            m_bytes.push_back(char(m_acc & 0xff));
        m_acc = 0;
        m_count = 0;
        return m_bytes;
    }

private:
    QByteArray m_bytes;
    uint32_t m_acc = 0;
    int m_count = 0;
};

QByteArray lzw(std::vector<uint8_t> const& pixels)
{
    constexpr int kMinCodeSize = 8;
    constexpr int kClear = 1 << kMinCodeSize;
    constexpr int kEnd = kClear + 1;
    BitWriter out;
    // (prefix code << 8 | next byte) -> code
    std::unordered_map<uint32_t, int> table;
    int codeSize = kMinCodeSize + 1;
    int maxCode = kEnd;
    out.write(kClear, codeSize);
    int current = -1;
    for (uint8_t const px : pixels) {
        if (current < 0) {
            current = px;
            continue;
        }
        uint32_t const key = (uint32_t(current) << 8) | px;
        auto it = table.find(key);
        if (it != table.end()) {
            current = it->second;
            continue;
        }
        out.write(current, codeSize);
        ++maxCode;
        table.emplace(key, maxCode);
        if (maxCode >= (1 << codeSize) && codeSize < 12)
            ++codeSize;
        if (maxCode == 4095) {
            out.write(kClear, codeSize);
            table.clear();
            codeSize = kMinCodeSize + 1;
            maxCode = kEnd;
        }
        current = px;
    }
    if (current >= 0)
        out.write(current, codeSize);
    out.write(kClear, codeSize);
    out.write(kEnd, kMinCodeSize + 1);
    return out.finish();
}

void putWord(QByteArray& out, int v)
{
    out.push_back(char(v & 0xff));
    out.push_back(char((v >> 8) & 0xff));
}

} // namespace

bool writeGif(QString const& file, Image const& image)
{
    int const w = image.size.width();
    int const h = image.size.height();
    if (w < 1 || h < 1 || w > 0xffff || h > 0xffff || image.frames < 1)
        return false;

    std::vector<QImage> frames;
    for (int f = 0; f < image.frames; ++f)
        frames.push_back(renderFrame(image, f));
    std::vector<QRgb> const palette = buildPalette(frames);
    IndexMapper mapper(palette);

    QByteArray gif("GIF89a");
    putWord(gif, w);
    putWord(gif, h);
    gif.push_back(char(0xF7)); // global table of 256 colours, 8-bit resolution
    gif.push_back(char(kTransparentIndex));
    gif.push_back(char(0));
    for (int i = 0; i < 256; ++i) {
        QRgb const c = i < int(palette.size()) ? palette[size_t(i)] : kThemeBackground.rgb();
        gif.push_back(char(qRed(c)));
        gif.push_back(char(qGreen(c)));
        gif.push_back(char(qBlue(c)));
    }
    // Loop forever.
    gif.append("\x21\xFF\x0B" "NETSCAPE2.0" "\x03\x01", 16);
    putWord(gif, 0);
    gif.push_back(char(0));

    int const delay = qBound(1, (image.frameDelayMs + 5) / 10, 0xffff);
    for (QImage const& frame : frames) {
        gif.append("\x21\xF9\x04", 3);
        gif.push_back(char((2 << 2) | 1)); // restore to background, transparent index
        putWord(gif, delay);
        gif.push_back(char(kTransparentIndex));
        gif.push_back(char(0));

        gif.push_back(char(0x2C));
        putWord(gif, 0);
        putWord(gif, 0);
        putWord(gif, w);
        putWord(gif, h);
        gif.push_back(char(0)); // no local table, not interlaced

        std::vector<uint8_t> pixels;
        pixels.reserve(size_t(w) * size_t(h));
        for (int y = 0; y < h; ++y) {
            auto const* line = reinterpret_cast<QRgb const*>(frame.constScanLine(y));
            for (int x = 0; x < w; ++x)
                pixels.push_back(mapper.index(line[x]));
        }
        QByteArray const data = lzw(pixels);
        gif.push_back(char(8));
        for (int pos = 0; pos < data.size(); pos += 255) {
            int const n = std::min(255, int(data.size()) - pos);
            gif.push_back(char(n));
            gif.append(data.constData() + pos, n);
        }
        gif.push_back(char(0));
    }
    gif.push_back(char(0x3B));

    QFile out(file);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return out.write(gif) == gif.size();
}

} // namespace themeimages
