#pragma once
// Whole files as bytes, for tests that check what lands on disk byte for byte.

#include <QByteArray>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace mk::test {

inline QByteArray readBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

}  // namespace mk::test
