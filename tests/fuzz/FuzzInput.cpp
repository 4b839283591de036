#include "fuzz/FuzzInput.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace Fuzz {

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr double kDoubleMax = std::numeric_limits<double>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr auto kFloatMax = static_cast<double>(std::numeric_limits<float>::max());

const int kIntegers[] = {0,           1,       -1,         2,        100,           255,
                         360,         65536,   -100,       kIntMax,  kIntMax - 1,   kIntMin,
                         kIntMin + 1, 1 << 30, -(1 << 30), 16777215, 1'000'000'000, -1'000'000'000};

const double kNumbers[] = {0.0,
                           -0.0,
                           1.0,
                           -1.0,
                           0.5,
                           100.0,
                           0.001,
                           1e-9,
                           1e9,
                           -1e9,
                           2147483647.0,
                           2147483648.0,
                           -2147483649.0,
                           1e15,
                           1e39,
                           1e300,
                           kDoubleMax,
                           -kDoubleMax,
                           kFloatMax,
                           -kFloatMax,
                           kInfinity,
                           -kInfinity,
                           std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::denorm_min()};

const char *const kTexts[] = {
    "",
    "a",
    "Label",
    "<b>rich</b><img src='x.png'>",
    "&mnemonic && more",
    "1 2",
    "1 2 3",
    "1 2 3 4",
    "1 0 0 0 1 0 5 6 1",
    "nan inf -inf 1e39",
    "0.5",
    "-7",
    "#80ff0000",
    "red",
    "png",
    "jpeg",
    "true",
    "/tmp",
    "line\nline\r\n\ttab",
    "\xe2\x80\xae\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
    "%1 %n %",
    "color: red; background: url(x.png)",
    "QWidget { border: 40px solid red; padding: 9px }",
    "QSlider::handle { width: 900px } QAbstractSpinBox { min-height: 70px",
    "}{;:!",
    "radio_buttons"};

} // namespace

FuzzInput::FuzzInput(const std::uint8_t *data, std::size_t size)
    : m_data(data)
    , m_size(size)
{
}

FuzzInput FuzzInput::take(std::size_t size)
{
    const FuzzInput part(m_data, std::min(size, m_size));
    m_data += part.m_size;
    m_size -= part.m_size;
    return part;
}

std::uint8_t FuzzInput::byte()
{
    if (isEmpty())
        return 0;
    --m_size;
    return *m_data++;
}

int FuzzInput::integer()
{
    switch (below(4)) {
    case 0:
        return byte();
    case 1:
        return -int(byte());
    case 2:
        return pick(kIntegers);
    default:
        return raw<int>();
    }
}

double FuzzInput::number()
{
    switch (below(4)) {
    case 0:
        return byte() / 16.0;
    case 1:
        return integer();
    case 2:
        return pick(kNumbers);
    default:
        return raw<double>();
    }
}

QString FuzzInput::text()
{
    const int choice = byte();
    if (choice < 0xF0)
        return QString::fromUtf8(kTexts[std::size_t(choice) % std::size(kTexts)]);
    return take(std::size_t(choice - 0xF0) + 1).remainingText();
}

QString FuzzInput::remainingText()
{
    QByteArray bytes;
    while (!isEmpty())
        bytes.append(static_cast<char>(byte()));
    return QString::fromUtf8(bytes);
}

template <typename T>
T FuzzInput::raw()
{
    std::array<std::uint8_t, sizeof(T)> bytes{};
    for (std::uint8_t &part : bytes)
        part = byte();
    T result;
    std::memcpy(&result, bytes.data(), sizeof(T));
    return result;
}

} // namespace Fuzz
