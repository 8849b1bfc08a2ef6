#include "Comparison.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace demo::testing {

namespace {

constexpr int tileSide = 16;
/// From this distance on, of 255, a pixel has another colour; so much of a tile may have one.
constexpr int loud = 32;
constexpr double loudShareOfTile = 0.04;
/// The same for a change of tone, which is seen where it covers an area.
constexpr int quiet = 12;
constexpr double quietShareOfTile = 0.5;
/// How much of the whole picture may have another colour, however it is scattered.
constexpr double loudShareOfPicture = 0.001;

using Color = std::array<std::uint8_t, 3>;

/// A picture as rows of colours, with the nearest colour of its edge around it.
class Raster {
public:
    explicit Raster(const QImage& image) : size_(image.size()) {
        const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
        colors_.resize(static_cast<std::size_t>(size_.width()) * static_cast<std::size_t>(size_.height()));
        for (int y = 0; y < size_.height(); ++y) {
            std::copy_n(reinterpret_cast<const Color*>(rgb.constScanLine(y)), size_.width(),
                        &colors_[index(0, y)]);
        }
    }

    [[nodiscard]] QSize size() const { return size_; }
    [[nodiscard]] const Color& at(int x, int y) const {
        return colors_[index(std::clamp(x, 0, size_.width() - 1), std::clamp(y, 0, size_.height() - 1))];
    }

    /// Each pixel becomes the average of itself and two neighbours, along one direction.
    void smear(int dx, int dy) {
        std::vector<Color> result = colors_;
        for (int y = 0; y < size_.height(); ++y) {
            for (int x = 0; x < size_.width(); ++x) {
                const Color& before = at(x - dx, y - dy);
                const Color& here = at(x, y);
                const Color& after = at(x + dx, y + dy);
                for (std::size_t i = 0; i < here.size(); ++i) {
                    result[index(x, y)][i] =
                        static_cast<std::uint8_t>((before[i] + here[i] + after[i] + 1) / 3);
                }
            }
        }
        colors_ = std::move(result);
    }

private:
    [[nodiscard]] std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width()) +
               static_cast<std::size_t>(x);
    }

    QSize size_;
    std::vector<Color> colors_;
};

Raster blurred(const QImage& image) {
    Raster raster(image);
    for (int pass = 0; pass < 2; ++pass) {
        raster.smear(1, 0);
        raster.smear(0, 1);
    }
    return raster;
}

int distance(const Color& one, const Color& other) {
    int most = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        most = std::max(most, std::abs(one[i] - other[i]));
    }
    return most;
}

/// The least distance between one picture's pixel and those around the same place in the other.
int distanceAround(const Raster& one, const Raster& other, int x, int y) {
    const Color& color = one.at(x, y);
    int least = distance(color, other.at(x, y));
    for (int dy = -1; dy <= 1 && least > quiet; ++dy) {
        for (int dx = -1; dx <= 1 && least > quiet; ++dx) {
            least = std::min(least, distance(color, other.at(x + dx, y + dy)));
        }
    }
    return least;
}

struct Count {
    int loud = 0;
    int quiet = 0;
};

Count countTile(const Raster& expected, const Raster& actual, QRect tile, QImage& picture) {
    Count count;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        for (int x = tile.left(); x <= tile.right(); ++x) {
            // Each way, so that neither what is missing nor what is new is taken for a neighbour.
            const int far =
                std::max(distanceAround(expected, actual, x, y), distanceAround(actual, expected, x, y));
            count.loud += far > loud;
            count.quiet += far > quiet;
            if (far > quiet) {
                picture.setPixel(x, y, qRgb(far > loud ? 255 : 160, 0, 0));
            }
        }
    }
    return count;
}

std::string text(QRect place) {
    return std::to_string(place.width()) + "x" + std::to_string(place.height()) + " at " +
           std::to_string(place.x()) + ", " + std::to_string(place.y());
}

} // namespace

std::optional<Difference> compare(const QImage& expected, const QImage& actual) {
    if (expected.size() != actual.size()) {
        return Difference{"it measures " + text(actual.rect()) + ", not " + text(expected.rect()), actual};
    }
    const Raster before = blurred(expected);
    const Raster after = blurred(actual);
    QImage picture = actual.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
    QRect different;
    int allLoud = 0;
    for (int y = 0; y < picture.height(); y += tileSide) {
        for (int x = 0; x < picture.width(); x += tileSide) {
            const QRect tile = QRect(x, y, tileSide, tileSide).intersected(picture.rect());
            const auto [loudPixels, quietPixels] = countTile(before, after, tile, picture);
            allLoud += loudPixels;
            constexpr double pixels = tileSide * tileSide;
            if (loudPixels > loudShareOfTile * pixels || quietPixels > quietShareOfTile * pixels) {
                different |= tile;
            }
        }
    }
    if (!different.isEmpty()) {
        return Difference{"it differs within " + text(different), picture};
    }
    if (allLoud > loudShareOfPicture * picture.width() * picture.height()) {
        return Difference{"it differs in " + std::to_string(allLoud) + " pixels all over", picture};
    }
    return std::nullopt;
}

} // namespace demo::testing
