#pragma once
// The number of the run-time error a step raises; 0 when it raises none.

#include "platform/runtime_error.h"

#include <functional>

namespace mk::test {

inline int errorOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const RuntimeError& e) {
        return e.Number;
    }
    return 0;
}

}  // namespace mk::test
