// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/CellMeans.h"
#include "core/Imaging/ImageEffects.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

/// Reads hidden text back, and prints how much of it that recovers. The attacker knows everything but the text and the
/// noise: font, size, where each letter stands, the style, its strength and how it works. For every letter at every
/// place it computes what the hidden picture would show of it, and looks for the word whose sum comes closest.
namespace tessaly {

namespace {

const QString alphabet = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123456789");
constexpr int wordLength = 8, wordCount = 20;

using Random = std::minstd_rand;
using Word = std::vector<int>; ///< letters, as places in the alphabet

/// A line of text in letters of one width, with four points around it.
class Scene {
public:
    Scene(double points, double pixelsPerPoint) : m_pixelsPerPoint(pixelsPerPoint)
    {
        m_font.setPixelSize(static_cast<int>(points * pixelsPerPoint));
        const QFontMetricsF metrics(m_font);
        const double margin = 4 * pixelsPerPoint;
        m_pitch = std::round(metrics.horizontalAdvance(u'm'));
        m_start = { margin, std::round(margin + metrics.ascent()) };
        m_size = QSizeF(wordLength * m_pitch + 2 * margin, std::ceil(metrics.height()) + 2 * margin).toSize();
    }

    double pixelsPerPoint() const { return m_pixelsPerPoint; }
    QSize size() const { return m_size; }

    QImage page(const Word &word) const
    {
        QImage image(m_size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        for (int place = 0; place < wordLength; ++place)
            draw(painter, place, word[place]);
        return image;
    }

    /// White on black: what one letter takes from the page.
    QImage ink(int place, int letter) const
    {
        QImage image(m_size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        draw(painter, place, letter);
        painter.end();
        image.invertPixels();
        return image;
    }

private:
    void draw(QPainter &painter, int place, int letter) const
    {
        painter.setFont(m_font);
        painter.drawText(m_start + QPointF(place * m_pitch, 0), alphabet.mid(letter, 1));
    }

    double m_pixelsPerPoint;
    QFont m_font { QStringLiteral("DejaVu Sans Mono") };
    double m_pitch;
    QPointF m_start;
    QSize m_size;
};

/// One way of hiding, and what can be measured in its pictures: numbers in which letters add up.
class Hiding {
public:
    virtual ~Hiding() = default;
    virtual QImage hide(const QImage &page) const = 0;
    virtual std::vector<float> expected(const QImage &ink) const = 0;
    virtual std::vector<float> measured(const QImage &hidden) const = 0;
    /// How much each number can be trusted.
    virtual std::vector<float> trust(const std::vector<float> &measured) const = 0;
};

class PixelateHiding final : public Hiding {
public:
    PixelateHiding(const Scene &scene, double strength) :
        m_strength(strength),
        m_pixelsPerPoint(scene.pixelsPerPoint()),
        m_side(ImageEffects::pixelCellSide(scene.size(), strength, m_pixelsPerPoint)),
        m_columns(scene.size().width(), m_side),
        m_rows(scene.size().height(), m_side)
    {
    }

    QImage hide(const QImage &page) const override
    {
        return ImageEffects::pixelated(page, m_strength, m_pixelsPerPoint, ImageEffects::NoiseSeed::random());
    }

    std::vector<float> expected(const QImage &ink) const override
    {
        const CellAverager averager(ink, m_columns, m_rows);
        std::vector<float> numbers;
        for (int row = 0; row < m_rows.count(); ++row) {
            for (const CellMean &mean : averager.row(row))
                numbers.push_back(mean[0]);
        }
        return numbers;
    }

    std::vector<float> measured(const QImage &hidden) const override
    {
        std::vector<float> numbers;
        for (int row = 0; row < m_rows.count(); ++row) {
            for (int column = 0; column < m_columns.count(); ++column)
                numbers.push_back(255.0f - float(qBlue(hidden.pixel(m_columns.start(column), m_rows.start(row)))));
        }
        return numbers;
    }

    std::vector<float> trust(const std::vector<float> &measured) const override
    {
        // The noise's deviation of 0.04 moves a level b by 2 · 0.04 · b · (1 − b); rounding adds its own.
        std::vector<float> trust;
        for (const float number : measured) {
            const float level = 1 - number / 255, moved = 255 * 0.08f * level * (1 - level);
            trust.push_back(1 / (moved * moved + 0.1f));
        }
        return trust;
    }

private:
    double m_strength, m_pixelsPerPoint, m_side;
    CellAxis m_columns, m_rows;
};

class BlurHiding final : public Hiding {
public:
    BlurHiding(const Scene &scene, double strength) : m_strength(strength)
    {
        const double side = std::max(scene.size().width(), scene.size().height());
        m_radius = std::max(strength * side * 0.125, 6.0);
        m_step = std::max(1, static_cast<int>(m_radius / 3));
    }

    QImage hide(const QImage &page) const override { return ImageEffects::obscuringBlur(page, m_strength); }

    std::vector<float> expected(const QImage &ink) const override
    {
        const int width = ink.width(), height = ink.height();
        std::vector<float> across(std::size_t(width) * height), both(across.size());
        const auto soften = [this](int length, auto value, auto store) {
            const int reach = static_cast<int>(4 * m_radius);
            for (int place = 0; place < length; ++place) {
                double sum = 0, weights = 0;
                for (int offset = -reach; offset <= reach; ++offset) {
                    const double weight = std::exp(-offset * offset / (2 * m_radius * m_radius));
                    weights += weight;
                    sum += weight * value(std::clamp(place + offset, 0, length - 1));
                }
                store(place, float(sum / weights));
            }
        };
        for (int y = 0; y < height; ++y)
            soften(
                width, [&](int x) { return double(qBlue(ink.pixel(x, y))); },
                [&](int x, float value) { across[std::size_t(y) * width + x] = value; });
        for (int x = 0; x < width; x += m_step)
            soften(
                height, [&](int y) { return double(across[std::size_t(y) * width + x]); },
                [&](int y, float value) { both[std::size_t(y) * width + x] = value; });
        return sampled(width, height, [&](int x, int y) { return both[std::size_t(y) * width + x]; });
    }

    std::vector<float> measured(const QImage &hidden) const override
    {
        return sampled(
            hidden.width(), hidden.height(), [&](int x, int y) { return 255.0f - float(qBlue(hidden.pixel(x, y))); });
    }

    std::vector<float> trust(const std::vector<float> &measured) const override
    {
        return std::vector<float>(measured.size(), 1.0f);
    }

private:
    template <class Value>
    std::vector<float> sampled(int width, int height, Value value) const
    {
        std::vector<float> numbers;
        for (int y = 0; y < height; y += m_step) {
            for (int x = 0; x < width; x += m_step)
                numbers.push_back(value(x, y));
        }
        return numbers;
    }

    double m_strength, m_radius;
    int m_step;
};

/// Finds the word whose letters' sum comes closest to what was measured.
class Attacker {
public:
    Attacker(const Scene &scene, const Hiding &hiding) : m_hiding(hiding)
    {
        for (int place = 0; place < wordLength; ++place) {
            for (int letter = 0; letter < letters; ++letter)
                m_expected.push_back(hiding.expected(scene.ink(place, letter)));
        }
    }

    Word read(const QImage &hidden, Random &random)
    {
        const auto measured = m_hiding.measured(hidden);
        relate(measured, m_hiding.trust(measured));
        Word best;
        double least = HUGE_VAL;
        for (int start = 0; start < 6; ++start) {
            Word word(wordLength);
            for (int &letter : word)
                letter = static_cast<int>(random() % letters);
            while (improve(word)) { }
            if (const double error = errorOf(word); error < least) {
                least = error;
                best = word;
            }
        }
        return best;
    }

private:
    static constexpr int letters = 36, all = wordLength * letters;

    double product(
        const std::vector<float> &one, const std::vector<float> &other, const std::vector<float> &trust) const
    {
        double sum = 0;
        for (std::size_t index = 0; index < one.size(); ++index)
            sum += double(one[index] * other[index] * trust[index]);
        return sum;
    }

    /// The squared error of any word is made of these.
    void relate(const std::vector<float> &measured, const std::vector<float> &trust)
    {
        m_pairs.assign(std::size_t(all) * all, 0);
        m_fits.assign(all, 0);
        for (int one = 0; one < all; ++one) {
            m_fits[one] = product(m_expected[one], measured, trust);
            for (int other = 0; other <= one; ++other)
                m_pairs[one * all + other] = m_pairs[other * all + one]
                    = product(m_expected[one], m_expected[other], trust);
        }
    }

    double errorOf(const Word &word) const
    {
        double error = 0;
        for (int place = 0; place < wordLength; ++place) {
            const int one = place * letters + word[place];
            error -= 2 * m_fits[one];
            for (int other = 0; other < wordLength; ++other)
                error += m_pairs[one * all + other * letters + word[other]];
        }
        return error;
    }

    /// Tries every pair of letters at every two neighbouring places.
    bool improve(Word &word) const
    {
        double least = errorOf(word) - 1e-6;
        bool improved = false;
        for (int place = 0; place + 1 < wordLength; ++place) {
            Word tried = word;
            for (int pair = 0; pair < letters * letters; ++pair) {
                tried[place] = pair / letters;
                tried[place + 1] = pair % letters;
                if (const double error = errorOf(tried); error < least) {
                    least = error;
                    word = tried;
                    improved = true;
                }
            }
        }
        return improved;
    }

    const Hiding &m_hiding;
    std::vector<std::vector<float>> m_expected;
    std::vector<double> m_pairs, m_fits;
};

double shareRecovered(const Scene &scene, const Hiding &hiding)
{
    Random random(2024);
    Attacker attacker(scene, hiding);
    int right = 0;
    for (int count = 0; count < wordCount; ++count) {
        Word word(wordLength);
        for (int &letter : word)
            letter = static_cast<int>(random() % alphabet.size());
        const Word read = attacker.read(hiding.hide(scene.page(word)), random);
        for (int place = 0; place < wordLength; ++place)
            right += read[place] == word[place] ? 1 : 0;
    }
    return double(right) / (wordCount * wordLength);
}

} // namespace

} // namespace tessaly

int main(int argc, char **argv)
{
    using namespace tessaly;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    constexpr double strengths[] = { 0.25, 0.5, 1, 2 };
    std::printf("Characters recovered from a hidden line of %d, in percent; chance is %.1f\n\n", wordLength,
        100.0 / double(alphabet.size()));
    std::printf("                        pixelate at strength         blur at strength\n");
    std::printf("points  scale  height   0.25   0.5     1     2       0.25   0.5     1     2\n");
    for (const double points : { 10.0, 12.0, 16.0 }) {
        for (const double scale : { 1.0, 2.0 }) {
            const Scene scene(points, scale);
            std::printf("%6.0f %6.0f %7d ", points, scale, scene.size().height());
            for (const double strength : strengths)
                std::printf("%6.0f", 100 * shareRecovered(scene, PixelateHiding(scene, strength)));
            std::printf("     ");
            for (const double strength : strengths)
                std::printf("%6.0f", 100 * shareRecovered(scene, BlurHiding(scene, strength)));
            std::printf("\n");
            std::fflush(stdout);
        }
    }
    return 0;
}
