// What holds of everything that is laid out, tried on many generated samples.
#pragma once

#include <QRandomGenerator>
#include <QRectF>
#include <QtDebug>

#include <array>
#include <map>
#include <vector>

template<typename Sample>
struct Property
{
    const char *name;
    bool (*holds)(const Sample &);
};

/// Whether all of them hold of the samples made from the seeds 1 to count; says which don't.
template<typename Sample, size_t n>
bool hold(const std::array<Property<Sample>, n> &properties, quint32 count)
{
    std::map<const char *, QList<quint32>> broken;
    for (quint32 seed = 1; seed <= count; ++seed) {
        const Sample sample(seed);
        for (const Property<Sample> &property : properties) {
            if (!property.holds(sample))
                broken[property.name] << seed;
        }
    }
    for (const auto &[name, seeds] : broken)
        qWarning() << name << "is broken by" << seeds.size() << "samples, the first ones"
                   << seeds.mid(0, 8);
    return broken.empty();
}

/// From 600 x 400 to 4K, not always at the origin.
inline QRectF anyArea(QRandomGenerator &random)
{
    return QRectF(random.bounded(99), random.bounded(99), 600 + random.bounded(3241),
                  400 + random.bounded(1761));
}

/// A height of a line of text of which the area is at least so many wide and high.
inline double anyLineHeight(QRandomGenerator &random, const QRectF &area, double across,
                            double down)
{
    return 10 + random.bounded(std::min({60.0, area.width() / across, area.height() / down}) - 10);
}

inline bool near(double a, double b, double tolerance = 1e-6)
{
    return std::abs(a - b) <= tolerance;
}

/// Whether all of them lie in the area and none on another one, but for half a dot.
inline bool fit(const std::vector<QRectF> &rects, const QRectF &area)
{
    for (size_t i = 0; i < rects.size(); ++i) {
        if (!area.adjusted(-0.51, -0.51, 0.51, 0.51).contains(rects[i]))
            return false;
        for (size_t j = 0; j < i; ++j) {
            const QRectF common = rects[i] & rects[j];
            if (common.width() > 0.51 && common.height() > 0.51)
                return false;
        }
    }
    return true;
}
