// The control models' behaviour that the program's rules lean on.
#include <gtest/gtest.h>

#include "VirtualEventLoop.h"
#include "controls/ControlArray.h"
#include "controls/Errors.h"
#include "controls/Timer.h"
#include "controls/Widgets.h"

using namespace sonarium;

TEST(ListBoxModel, SelectingAnotherRowFiresTheClickAndTheSelectionFollowsItsRow) {
    ListBox list("lstSongs");
    QStringList clicks;
    list.onClick = [&] { clicks << list.Text(); };
    for (const char* t : {"a", "b", "c"}) list.AddItem(t);
    list.setListIndex(1);
    list.setListIndex(1);  // same row: no second click
    list.RemoveItem(1);    // the selected row goes: nothing is selected, no click
    EXPECT_EQ(list.ListIndex(), -1);
    list.setListIndex(1);
    list.RemoveItem(0);  // a row above the selection: the selection follows its row
    list.AddItem("first", 0);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks, QStringList({"b", "c"}));

    ListBox sorted("List1");
    sorted.setSorted(true);
    for (const char* t : {"beta", "Alpha", "Gamma", "alpha"}) sorted.AddItem(t);
    EXPECT_EQ(sorted.rows(), QStringList({"Alpha", "alpha", "beta", "Gamma"})) << "equal rows keep arrival";
}

// A value the control cannot take fails, and the control keeps what it had.
TEST(ControlModels, BadValuesFailAndChangeNothing) {
    ListBox list("lstSongs");
    list.AddItem("a");
    CheckBox check("chkUseInOut");
    VirtualEventLoop loop;
    Timer timer("tmrInfo", loop, 30000);
    ControlArray<Label> titles("Title", 12);
    const Picture sheet = Picture::filled(4, 3, 0xff000000);
    const std::function<void()> bad[] = {
        [&] { list.setListIndex(1); },     [&] { list.RemoveItem(1); }, [&] { check.setValue(3); },
        [&] { timer.setInterval(65536); }, [&] { titles[12]; },         [&] { sheet.cut(3, 0, 2, 1); },
        [&] { Picture().cut(0, 0, 1, 1); }};
    for (std::size_t i = 0; i < std::size(bad); ++i) EXPECT_THROW(bad[i](), RuntimeError) << i;
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(timer.Interval(), 30000);
}
