#pragma once

#include "core/RunTimeError.h"

#include <QVarLengthArray>
#include <algorithm>
#include <bit>
#include <memory>
#include <unordered_map>
#include <vector>

/// A map that keeps the order in which its keys came: assigning to a key keeps its place, removing and adding it again
/// moves it to the end. Looking up, adding and removing cost the same at any size. Reading a missing key adds it with
/// an empty value, which is meant; `Find` and `Exists` do not. An item stays where it is in memory until its key is
/// removed.
template <typename Key, typename Value>
class Dictionary
{
    /// The entries lie side by side in blocks that double in size, so that a walk over all reads packed memory: from a
    /// linked list, 100,000 of them are as many waits for a far place. What was removed leaves a gap until all is gone.
    struct Entry
    {
        Key EntryKey{};
        Value Item{};
        bool IsThere = false;
    };

public:
    /// Raises 457 where the key is there already.
    void Add(const Key& key, Value item)
    {
        if (Exists(key))
            throw RunTimeError(ErrorNumber::KeyAlreadyThere);
        Append(key, std::move(item));
    }

    /// The item of a key; a missing key is added with an empty item.
    [[nodiscard]] Value& Item(const Key& key)
    {
        const auto found = m_index.find(key);
        return found != m_index.end() ? At(found->second).Item : Append(key, Value{});
    }

    /// The item of a key, or null.
    [[nodiscard]] Value* Find(const Key& key)
    {
        const auto found = m_index.find(key);
        return found != m_index.end() ? &At(found->second).Item : nullptr;
    }
    [[nodiscard]] const Value* Find(const Key& key) const
    {
        const auto found = m_index.find(key);
        return found != m_index.end() ? &At(found->second).Item : nullptr;
    }

    [[nodiscard]] bool Exists(const Key& key) const { return m_index.contains(key); }

    /// Raises 32811 where the key is missing.
    void Remove(const Key& key)
    {
        const auto found = m_index.find(key);
        if (found == m_index.end())
            throw RunTimeError(ErrorNumber::DictionaryRemove);
        At(found->second) = Entry();
        m_index.erase(found);
        if (m_index.empty())
            RemoveAll();
    }

    void RemoveAll()
    {
        m_index.clear();
        m_blocks.clear();
        m_used = 0;
    }

    [[nodiscard]] qsizetype Count() const { return static_cast<qsizetype>(m_index.size()); }
    [[nodiscard]] bool IsEmpty() const { return m_index.empty(); }

    /// Copies, safe to walk while the dictionary changes.
    [[nodiscard]] std::vector<Key> Keys() const
    {
        std::vector<Key> keys;
        keys.reserve(m_index.size());
        ForEach([&keys](const Key& key, const Value&) { keys.push_back(key); });
        return keys;
    }
    [[nodiscard]] std::vector<Value> Items() const
    {
        std::vector<Value> items;
        items.reserve(m_index.size());
        ForEach([&items](const Key&, const Value& item) { items.push_back(item); });
        return items;
    }

    /// Calls `visit(key, item)` in the order of insertion, without copies; the walk must not change the dictionary. A
    /// visit that returns a bool ends the walk with false.
    template <typename Visit>
    void ForEach(Visit&& visit) const
    {
        for (qsizetype block = 0; FirstOf(block) < m_used; ++block) {
            const Entry* entries = m_blocks[block].get();
            for (size_t i = 0; i < SizeOf(block) && FirstOf(block) + i < m_used; ++i) {
                if (!entries[i].IsThere)
                    continue;
                if constexpr (std::is_same_v<std::invoke_result_t<Visit, const Key&, const Value&>, bool>) {
                    if (!visit(entries[i].EntryKey, entries[i].Item))
                        return;
                } else {
                    visit(entries[i].EntryKey, entries[i].Item);
                }
            }
        }
    }

    /// Has the memory fetch what a walk over a few entries reads. Asked of many dictionaries before the first is
    /// walked, their waits fall together.
    void Prefetch() const
    {
        for (qsizetype block = 0; block < std::min(m_blocks.size(), BlocksInside); ++block)
            __builtin_prefetch(m_blocks[block].get());
    }

private:
    // Block n holds the positions from 2^(n + 1) - 2 on, 2^(n + 1) of them.
    [[nodiscard]] static size_t SizeOf(qsizetype block) { return size_t{2} << block; }
    [[nodiscard]] static size_t FirstOf(qsizetype block) { return SizeOf(block) - 2; }
    [[nodiscard]] static qsizetype BlockOf(size_t position) { return std::bit_width(position + 2) - 2; }

    [[nodiscard]] Entry& At(size_t position) const
    {
        const qsizetype block = BlockOf(position);
        return m_blocks[block][position - FirstOf(block)];
    }

    Value& Append(const Key& key, Value item)
    {
        if (BlockOf(m_used) == m_blocks.size())
            m_blocks.push_back(std::make_unique<Entry[]>(SizeOf(m_blocks.size())));
        m_index.emplace(key, m_used);
        Entry& entry = At(m_used++);
        entry = {key, std::move(item), true};
        return entry.Item;
    }

    // Most dictionaries are a contact's properties, and hold few entries: their blocks are found without a hop.
    static constexpr qsizetype BlocksInside = 2;
    QVarLengthArray<std::unique_ptr<Entry[]>, BlocksInside> m_blocks;
    size_t m_used = 0; ///< so many positions, the gaps among them
    std::unordered_map<Key, size_t> m_index;
};
