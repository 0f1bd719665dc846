#pragma once
// The ways a script run stops early. None of them derives from the system's own errors, so
// that no handler's "under ignored errors" step can swallow them on their way up.

#include <QString>

namespace mk::drive {

// A fault of the script itself: unknown command, unknown control path, an answer of the
// wrong kind, a script that ends inside a modal form. Exit status 2.
struct ScriptFault {
    int line = 0;
    QString message;
};

// An expectation that did not hold. Exit status 1.
struct ExpectFailed {
    int line = 0;
    QString expected;
    QString got;
};

// The system failed while a line ran (an error that no handler caught). Exit status 1.
struct SystemFailure {
    int line = 0;
    QString message;
};

}  // namespace mk::drive
