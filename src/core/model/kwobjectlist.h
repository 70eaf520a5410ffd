#pragma once

#include <QList>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <memory_resource>
#include <new>
#include <utility>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size)
#endif

/// Guests, groups or tables in list order; owns them. Each object knows its position, so indexOf()
/// does not search; but it reads the object, so no pointer from before a clear() may be asked
/// about. The objects live in blocks of memory that the list gives back when it is cleared or dies,
/// since a plan is copied thousands of times in a layout run and one block costs far less than an
/// allocation for each guest.
template <typename T>
class KWObjectList
{
public:
    KWObjectList() = default;
    KWObjectList(const KWObjectList &) = delete;
    KWObjectList &operator=(const KWObjectList &) = delete;
    ~KWObjectList() { clear(); }

    int size() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.isEmpty(); }
    const QList<T *> &items() const { return m_items; }
    auto begin() const { return m_items.cbegin(); }
    auto end() const { return m_items.cend(); }

    /// The object at a position from 0, or null outside the list.
    T *at(int position) const
    {
        return position >= 0 && position < size() ? m_items.at(position) : nullptr;
    }

    /// The position of an object, or -1 for null and for an object of another list.
    int indexOf(const T *item) const
    {
        return item && at(item->m_list_position) == item ? item->m_list_position : -1;
    }
    bool contains(const T *item) const { return indexOf(item) >= 0; }

    /// Makes room for `count` objects in one block. Only for an empty list.
    void reserve(int count)
    {
        if (count <= 0)
            return;
        const auto size = static_cast<std::size_t>(count) * sizeof(T);
        m_memory = std::make_unique<std::pmr::monotonic_buffer_resource>(size);
        m_items.reserve(count);
    }

    /// Constructs an object at the end of the list and returns it.
    template <typename... Args>
    T *append(Args &&...args)
    {
        if (!m_memory)
            m_memory = std::make_unique<std::pmr::monotonic_buffer_resource>();
        // Room in the list first, so that nothing can fail once the object is there.
        m_items.append(nullptr);
        try {
            void *place = m_memory->allocate(sizeof(T), alignof(T));
            T *item = new (place) T(std::forward<Args>(args)...);
            item->m_list_position = size() - 1;
            m_items.last() = item;
            return item;
        } catch (...) {
            m_items.removeLast();
            throw;
        }
    }

    /// Removes and destroys an object of this list.
    void remove(T *item)
    {
        const int position = indexOf(item);
        if (position < 0)
            return;
        m_items.removeAt(position);
        renumber(position);
        std::destroy_at(item);
        // The memory stays with the list, so AddressSanitizer must be told that it is dead.
        ASAN_POISON_MEMORY_REGION(item, sizeof(T));
    }

    /// Moves the object at one position to another, as positions stand after it is taken out.
    void move(int from, int to)
    {
        m_items.move(from, to);
        renumber(std::min(from, to));
    }

    void swap(KWObjectList &other) noexcept
    {
        m_items.swap(other.m_items);
        m_memory.swap(other.m_memory);
    }

    void clear()
    {
        for (T *item : std::as_const(m_items))
            std::destroy_at(item);
        m_items.clear();
        m_memory.reset();
    }

private:
    void renumber(int from)
    {
        for (int i = from; i < size(); ++i)
            m_items.at(i)->m_list_position = i;
    }

    QList<T *> m_items;
    std::unique_ptr<std::pmr::monotonic_buffer_resource> m_memory;
};
