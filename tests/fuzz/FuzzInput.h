#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

namespace Fuzz {

/**
 * The bytes of one input, taken from the front as decisions.
 *
 * After the last byte every byte is 0, so that each input means something, and inputs that differ in
 * few bytes mean nearly the same. Two decisions never stand in the arguments of one call, only in
 * braces: compilers differ in the order of arguments, and an input is to mean the same with each.
 */
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t *data, std::size_t size);

    bool isEmpty() const { return m_size == 0; }

    /// The next size bytes, or what is left of them, as an input of their own: a decision more or less
    /// in one of them leaves the others as they are.
    FuzzInput take(std::size_t size);

    std::uint8_t byte();
    bool flip() { return (byte() & 1U) != 0; }

    /// True in one of count cases.
    bool oneIn(int count) { return below(count) == count - 1; }

    /// A number from 0 to count - 1; count is at most 256.
    int below(int count) { return byte() % count; }

    /// An element of a table.
    template <typename T, std::size_t count>
    const T &pick(const T (&table)[count])
    {
        return table[byte() % count];
    }

    /// An element of a container that is not empty.
    template <typename Container>
    const typename Container::value_type &pickFrom(const Container &container)
    {
        return container.at(byte() % container.size());
    }

    /// Numbers that limits are made of, small ones, and any other.
    int integer();
    double number();

    /// Names, markup, numbers, and text of any other bytes.
    QString text();

    /// What is left, as UTF-8.
    QString remainingText();

private:
    template <typename T>
    T raw();

    const std::uint8_t *m_data;
    std::size_t m_size;
};

} // namespace Fuzz
