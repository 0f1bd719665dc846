#include "card/app_state.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

// Every subsystem registers its own handlers; two of them claiming the same event would leave
// one silently dead, so the whole table must be free of double claims.
TEST(HandlerTable, NoEventIsClaimedTwice)
{
    HandlerTable table;
    registerAllHandlers(table);
    EXPECT_GT(table.size(), 0);
    EXPECT_TRUE(table.duplicates().isEmpty()) << table.duplicates().join(QLatin1String(", ")).toStdString();
}

}  // namespace
}  // namespace mk
