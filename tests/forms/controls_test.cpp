// The controls' own behaviour: lists, grids, arrays loaded at run time.

#include "forms/controls.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

TEST(ListItemsTest, InsertingAndRemovingKeepsTheSelectionOnItsLine)
{
    ListBox list;
    list.AddItem("eins");
    list.AddItem("drei");
    list.ListIndex = 1;
    EXPECT_EQ(list.AddItem("zwei", 1), 1);
    EXPECT_EQ(list.ListIndex, 2);
    EXPECT_EQ(list.Text(), "drei");
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex, -1);
    EXPECT_THROW(list.RemoveItem(5), RuntimeError);
    EXPECT_THROW(list.AddItem("x", 9), RuntimeError);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
}

TEST(GridTest, ChangingTheColumnsKeepsEachCellInItsPlace)
{
    Grid grid;
    grid.setCols(3);
    grid.setRows(2);
    grid.setTextMatrix(1, 1, "Mitte");
    grid.setTextMatrix(1, 2, "Rand");
    grid.setCols(8);
    EXPECT_EQ(grid.TextMatrix(1, 1), "Mitte");
    EXPECT_EQ(grid.TextMatrix(1, 2), "Rand");
    EXPECT_EQ(grid.TextMatrix(1, 7), "");
    grid.setCols(2);
    EXPECT_EQ(grid.TextMatrix(1, 1), "Mitte");
    EXPECT_THROW(grid.TextMatrix(1, 2), RuntimeError);
}

TEST(ControlArrayTest, ElementsLoadedAtRunTimeCopyTheFirstHidden)
{
    ControlArray<TextBox> boxes(0, 1, [](TextBox& t, int) { t.MaxLength = 256; });
    boxes[0].Name = "Text1";
    TextBox& added = boxes.load(5);
    EXPECT_EQ(added.Index, 5);
    EXPECT_EQ(added.Name, "Text1");
    EXPECT_EQ(added.MaxLength, 256);
    EXPECT_FALSE(added.Visible);
    EXPECT_EQ(boxes.ubound(), 5);
    EXPECT_FALSE(boxes.exists(3));
    boxes.unload(5);
    EXPECT_THROW(boxes[5], RuntimeError);
}

TEST(TextBoxTest, TypedTextStopsAtMaxLengthButCodeDoesNot)
{
    TextBox box;
    box.MaxLength = 4;
    EXPECT_EQ(limitToMaxLength(box, "123456"), "1234");
    box.Text = "123456";  // code sets any length, as the runtime allowed
    EXPECT_EQ(box.Text.size(), 6);
}

}  // namespace
}  // namespace mk
