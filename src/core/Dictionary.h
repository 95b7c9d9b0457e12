#pragma once

#include "core/RunTimeError.h"

#include <list>
#include <unordered_map>
#include <vector>

/// A map that keeps the order in which its keys came: assigning to a key keeps its place, removing and adding it again moves
/// it to the end. Looking up, adding and removing cost the same at any size. Reading a missing key adds it with an empty
/// value, which is meant; `Find` and `Exists` do not.
template <typename Key, typename Value>
class Dictionary
{
    struct Entry
    {
        Key EntryKey;
        Value Item;
    };
    using List = std::list<Entry>;

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
        return found != m_index.end() ? found->second->Item : Append(key, Value{});
    }

    /// The item of a key, or null.
    [[nodiscard]] Value* Find(const Key& key)
    {
        const auto found = m_index.find(key);
        return found != m_index.end() ? &found->second->Item : nullptr;
    }
    [[nodiscard]] const Value* Find(const Key& key) const
    {
        const auto found = m_index.find(key);
        return found != m_index.end() ? &found->second->Item : nullptr;
    }

    [[nodiscard]] bool Exists(const Key& key) const { return m_index.contains(key); }

    /// Raises 32811 where the key is missing.
    void Remove(const Key& key)
    {
        const auto found = m_index.find(key);
        if (found == m_index.end())
            throw RunTimeError(ErrorNumber::DictionaryRemove);
        m_entries.erase(found->second);
        m_index.erase(found);
    }

    void RemoveAll()
    {
        m_index.clear();
        m_entries.clear();
    }

    [[nodiscard]] qsizetype Count() const { return static_cast<qsizetype>(m_entries.size()); }
    [[nodiscard]] bool IsEmpty() const { return m_entries.empty(); }

    /// Copies, safe to walk while the dictionary changes.
    [[nodiscard]] std::vector<Key> Keys() const
    {
        std::vector<Key> keys;
        keys.reserve(m_entries.size());
        for (const Entry& entry : m_entries)
            keys.push_back(entry.EntryKey);
        return keys;
    }
    [[nodiscard]] std::vector<Value> Items() const
    {
        std::vector<Value> items;
        items.reserve(m_entries.size());
        for (const Entry& entry : m_entries)
            items.push_back(entry.Item);
        return items;
    }

    /// Calls `visit(key, item)` in the order of insertion, without copies; the walk must not change the dictionary. A visit
    /// that returns a bool ends the walk with false.
    template <typename Visit>
    void ForEach(Visit&& visit) const
    {
        for (const Entry& entry : m_entries) {
            if constexpr (std::is_same_v<std::invoke_result_t<Visit, const Key&, const Value&>, bool>) {
                if (!visit(entry.EntryKey, entry.Item))
                    return;
            } else {
                visit(entry.EntryKey, entry.Item);
            }
        }
    }

private:
    Value& Append(const Key& key, Value item)
    {
        m_entries.push_back({key, std::move(item)});
        m_index.emplace(key, std::prev(m_entries.end()));
        return m_entries.back().Item;
    }

    List m_entries;
    std::unordered_map<Key, typename List::iterator> m_index;
};
