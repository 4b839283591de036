// What bindStruct() must refuse when it is compiled, line by line.

#include <host/StructBinding.h>

using namespace Tessark::PropertyHost;

enum class Mode { First };
enum class WideMode : long long { First };

struct Nested
{
    int number = 0;
};

struct Params
{
    double accepted = 0;
    unsigned wide = 0;
    long long wider = 0;
    char letter = 0;
    int *pointer = nullptr;
    Nested nested;
    Mode mode = Mode::First;
    WideMode wideMode = WideMode::First;
    const int fixed = 0;
};

void bindOne(Params *params)
{
    auto list = bindStruct(params);
    const QString label;
    list.bind(&Params::wide, label);
    list.bind(&Params::wider, label);
    list.bind(&Params::letter, label);
    list.bind(&Params::pointer, label);
    list.bind(&Params::nested, label);
    list.bind(&Params::mode, label);
    list.bind(&Params::wideMode, label, {{WideMode::First, label}});
    list.bind(&Params::fixed, label);
    list.group(&Params::accepted, label, [](auto &) {});
    list.bind(&Params::accepted, label, {{1.0, label}});
}
