#include "platform/field_scaler.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace wm {

namespace {

// Blends two 32-bit RGB pixels, `w` (0..256) parts of `b`; two channels at once in one word.
inline quint32 blend(quint32 a, quint32 b, uint w) {
    const uint v = 256 - w;
    const uint rb = (((a & 0xFF00FFu) * v + (b & 0xFF00FFu) * w) >> 8) & 0xFF00FFu;
    const uint g = (((a & 0x00FF00u) * v + (b & 0x00FF00u) * w) >> 8) & 0x00FF00u;
    return 0xFF000000u | rb | g;
}

// One row blended between two rows: most of the work of a tick, so four pixels at a time
// where the processor allows. Gives exactly what blend() gives.
void blendRows(quint32* out, const quint32* upper, const quint32* lower, int count, uint w) {
    if (w == 0) {
        std::memcpy(out, upper, size_t(count) * sizeof(quint32));
        return;
    }
    int x = 0;
#if defined(__SSE2__)
    const __m128i wb = _mm_set1_epi16(short(w));
    const __m128i wa = _mm_set1_epi16(short(256 - w));
    const __m128i zero = _mm_setzero_si128();
    const __m128i opaque = _mm_set1_epi32(int(0xFF000000u));
    for (; x + 4 <= count; x += 4) {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(upper + x));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(lower + x));
        // 255 * 256 fits 16 bits, so each channel is blended in a 16-bit lane.
        const __m128i lo =
            _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(_mm_unpacklo_epi8(a, zero), wa),
                                         _mm_mullo_epi16(_mm_unpacklo_epi8(b, zero), wb)),
                           8);
        const __m128i hi =
            _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(_mm_unpackhi_epi8(a, zero), wa),
                                         _mm_mullo_epi16(_mm_unpackhi_epi8(b, zero), wb)),
                           8);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + x),
                         _mm_or_si128(_mm_packus_epi16(lo, hi), opaque));
    }
#endif
    for (; x < count; ++x) out[x] = blend(upper[x], lower[x], w);
}

#if defined(__SSE2__)
// Two pixels, each blended between its own pair of pixels with its own weights.
inline __m128i blendPair(quint32 a0, quint32 a1, quint32 b0, quint32 b1, const quint16* wa,
                         const quint16* wb) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i a = _mm_unpacklo_epi8(_mm_set_epi32(0, 0, int(a1), int(a0)), zero);
    const __m128i b = _mm_unpacklo_epi8(_mm_set_epi32(0, 0, int(b1), int(b0)), zero);
    const __m128i va = _mm_loadu_si128(reinterpret_cast<const __m128i*>(wa));
    const __m128i vb = _mm_loadu_si128(reinterpret_cast<const __m128i*>(wb));
    return _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(a, va), _mm_mullo_epi16(b, vb)), 8);
}
#endif

}  // namespace

std::vector<FieldScaler::Tap> FieldScaler::taps(int from, int to) {
    // Pixel centres line up: target pixel i samples the source at (i + 0.5) * from / to - 0.5.
    std::vector<Tap> out(size_t(std::max(to, 0)));
    const double step = double(from) / std::max(to, 1);
    for (int i = 0; i < to; ++i) {
        const double at = std::clamp((i + 0.5) * step - 0.5, 0.0, double(from - 1));
        const int first = int(std::floor(at));
        const uint weight = uint(std::lround((at - first) * 256.0));
        out[size_t(i)] = {first, std::min(first + 1, from - 1), weight};
    }
    return out;
}

bool FieldScaler::resize(QSize source, QSize target) {
    if (scaled_.size() == target && source_ == source && !scaled_.isNull()) return false;
    source_ = source;
    scaled_ = target.isEmpty() ? QImage() : QImage(target, QImage::Format_RGB32);
    columns_ = taps(source.width(), target.width());
    rows_ = taps(source.height(), target.height());
    // Each column's two weights, once per channel, for blending across four channels at once.
    weightFirst_.assign(columns_.size() * 4, 0);
    weightSecond_.assign(columns_.size() * 4, 0);
    for (size_t i = 0; i < columns_.size(); ++i) {
        for (size_t c = 0; c < 4; ++c) {
            weightFirst_[i * 4 + c] = quint16(256 - columns_[i].weight);
            weightSecond_[i * 4 + c] = quint16(columns_[i].weight);
        }
    }
    return true;
}

void FieldScaler::update(const QImage& source, const QRect& area) {
    const QRect r = area.intersected(scaled_.rect());
    if (r.isEmpty() || source.format() != QImage::Format_RGB32 || source.size() != source_) return;
    // Source rows this rectangle reads, each blended across once for all the rows that use it.
    const int top = rows_[size_t(r.top())].first;
    const int bottom = rows_[size_t(r.bottom())].second;
    const int width = r.width();
    band_.resize(size_t(bottom - top + 1) * size_t(width));
    for (int y = top; y <= bottom; ++y) {
        const auto* in = reinterpret_cast<const quint32*>(source.constScanLine(y));
        quint32* out = band_.data() + size_t(y - top) * size_t(width);
        const Tap* tap = columns_.data() + r.left();
        int x = 0;
#if defined(__SSE2__)
        const quint16* wa = weightFirst_.data() + size_t(r.left()) * 4;
        const quint16* wb = weightSecond_.data() + size_t(r.left()) * 4;
        for (; x + 4 <= width; x += 4) {
            const Tap* t = tap + x;
            const __m128i lo = blendPair(in[t[0].first], in[t[1].first], in[t[0].second],
                                         in[t[1].second], wa + x * 4, wb + x * 4);
            const __m128i hi = blendPair(in[t[2].first], in[t[3].first], in[t[2].second],
                                         in[t[3].second], wa + x * 4 + 8, wb + x * 4 + 8);
            _mm_storeu_si128(
                reinterpret_cast<__m128i*>(out + x),
                _mm_or_si128(_mm_packus_epi16(lo, hi), _mm_set1_epi32(int(0xFF000000u))));
        }
#endif
        for (; x < width; ++x) out[x] = blend(in[tap[x].first], in[tap[x].second], tap[x].weight);
    }
    for (int y = r.top(); y <= r.bottom(); ++y) {
        const Tap& tap = rows_[size_t(y)];
        const quint32* upper = band_.data() + size_t(tap.first - top) * size_t(width);
        const quint32* lower = band_.data() + size_t(tap.second - top) * size_t(width);
        auto* out = reinterpret_cast<quint32*>(scaled_.scanLine(y)) + r.left();
        blendRows(out, upper, lower, width, tap.weight);
    }
}

}  // namespace wm
