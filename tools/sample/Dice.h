#pragma once

#include <QStringList>
#include <random>

/// Random choices that are the same with every library: only the engine is standardised, not the distributions.
class Dice
{
public:
    explicit Dice(quint64 seed) : m_engine(seed) {}

    /// A whole number from `low` to `high`, both included.
    int Between(int low, int high) { return low + int(m_engine() % quint64(high - low + 1)); }
    /// True in `percent` of a hundred cases.
    bool Chance(int percent) { return Between(0, 99) < percent; }
    /// One of the entries.
    const QString& Pick(const QStringList& entries) { return entries[Between(0, int(entries.size()) - 1)]; }
    /// The position of one of `weights`, each as likely as its weight says.
    template <typename Weights>
    int Weighted(const Weights& weights)
    {
        int total = 0;
        for (const int weight : weights)
            total += weight;
        int left = Between(0, total - 1);
        int position = 0;
        for (const int weight : weights) {
            if (left < weight)
                break;
            left -= weight;
            ++position;
        }
        return position;
    }

private:
    std::mt19937_64 m_engine;
};
