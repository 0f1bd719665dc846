#pragma once
// A fuzz target: one reader of outside data, fed any bytes. It may refuse them with the
// program's own RuntimeError (that is the reader's answer to a bad file); anything else, a
// crash, a hang or a leak, is a finding.

#include <QByteArray>
#include <vector>

namespace mk::fuzz {

struct Target {
    const char* name;
    const char* what;
    void (*run)(const QByteArray& input);
    // Inputs to start from: files the program writes itself and hand-made cases.
    std::vector<QByteArray> (*seeds)();
};

const std::vector<Target>& targets();

}  // namespace mk::fuzz
