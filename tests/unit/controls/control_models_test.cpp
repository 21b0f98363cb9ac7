// The control models' behaviour that the program's rules lean on.
#include <gtest/gtest.h>

#include "VirtualEventLoop.h"
#include "controls/ControlArray.h"
#include "controls/Errors.h"
#include "controls/Timer.h"
#include "controls/Widgets.h"

using namespace sonarium;

TEST(ListBoxModel, SelectingAnotherRowFiresTheClickAndBadIndexesFail) {
    ListBox list("lstSongs");
    QStringList clicks;
    list.onClick = [&] { clicks << list.Text(); };
    for (const char* t : {"a", "b", "c"}) list.AddItem(t);
    EXPECT_EQ(list.NewIndex(), 2);
    list.setListIndex(1);
    list.setListIndex(1);  // same row: no second click
    EXPECT_EQ(clicks, QStringList({"b"}));
    EXPECT_THROW(list.setListIndex(3), RuntimeError);
    EXPECT_THROW(list.setListIndex(-2), RuntimeError);
    EXPECT_EQ(list.List(7), "") << "a row outside the list reads as empty";

    list.RemoveItem(1);  // the selected row goes: nothing is selected, no click
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    list.setListIndex(1);
    list.RemoveItem(0);  // a row above the selection: the selection follows its row
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.Text(), "c");
    list.AddItem("first", 0);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks, QStringList({"b", "c"}));

    list.RemoveItem(1);
    list.RemoveItem(0);
    EXPECT_THROW(list.setListIndex(0), RuntimeError) << "selecting row 0 of an empty list fails";
    EXPECT_THROW(list.RemoveItem(0), RuntimeError);
}

TEST(ListBoxModel, ASortedListOrdersWithoutRegardToCaseAndKeepsEqualRowsInArrivalOrder) {
    ListBox list("List1");
    list.setSorted(true);
    for (const char* t : {"beta", "Alpha", "alpha", "Gamma", "ALPHA"}) list.AddItem(t);
    EXPECT_EQ(list.rows(), QStringList({"Alpha", "alpha", "ALPHA", "beta", "Gamma"}));
    EXPECT_EQ(list.NewIndex(), 2);
}

TEST(ComboBoxModel, TextIsTheSelectedRowOrTheTypedText) {
    ComboBox combo("cboGenre");
    combo.setText("typed");
    EXPECT_EQ(combo.Text(), "typed");
    combo.AddItem("Blues");
    combo.setListIndex(0);
    EXPECT_EQ(combo.Text(), "Blues");
}

TEST(TextBoxModel, KeyPressHandlerMaySwallowAKeyAndMaxLengthLimitsTyping) {
    TextBox box("txtTrackTitle");
    int changes = 0;
    box.onChange = [&] { ++changes; };
    box.onKeyPress = [](int& key) { if (key == 32) key = 0; };
    box.setMaxLength(4);
    for (char c : std::string("ab cde")) box.KeyPress(c);
    EXPECT_EQ(box.Text(), "abcd");
    EXPECT_EQ(changes, 4);
    box.KeyPress(8);
    EXPECT_EQ(box.Text(), "abc");
    box.setText("a longer text set by the program");  // the program is not limited
    EXPECT_EQ(box.Text().size(), 32);
}

TEST(ImageModel, WithoutStretchTheControlTakesThePicturesOwnSizeInTwips) {
    Image img("Photo");
    img.Move(0, 0, 3465, 1920);
    img.setPicture(Picture::filled(100, 50, 0xff000000));
    EXPECT_EQ(img.Width(), 1500);
    EXPECT_EQ(img.Height(), 750);
    img.setStretch(true);
    img.setWidth(3465);
    img.setPicture(Picture::filled(10, 10, 0xffffffff));
    EXPECT_EQ(img.Width(), 3465) << "a stretched image keeps its size";
    Picture shared = Picture::filled(8, 8, 0xff00ff00);
    Image lamp("imgVU", 3);
    lamp.setPicture(shared);
    EXPECT_TRUE(lamp.picture().sameAs(shared)) << "lamps take the same picture object";
}

TEST(PictureModel, CutsAreExactAndARectangleOutsideTheSheetFails) {
    std::vector<std::uint32_t> px(4 * 3);
    for (int i = 0; i < 12; ++i) px[std::size_t(i)] = 0xff000000u | std::uint32_t(i);
    Picture sheet(4, 3, px);
    Picture piece = sheet.cut(1, 1, 2, 2);
    EXPECT_EQ(piece.width(), 2);
    EXPECT_EQ(piece.pixel(0, 0), 0xff000005u);
    EXPECT_EQ(piece.pixel(1, 1), 0xff00000au);
    EXPECT_THROW(sheet.cut(3, 0, 2, 1), RuntimeError);
    EXPECT_THROW(sheet.cut(0, 0, 0, 1), RuntimeError);
    EXPECT_THROW(Picture().cut(0, 0, 1, 1), RuntimeError);
}

TEST(CheckBoxModel, AnotherValueFiresTheClick) {
    CheckBox box("chkUseInOut");
    int clicks = 0;
    box.onClick = [&] { ++clicks; };
    box.setValue(1);
    box.setValue(1);
    box.setValue(0);
    EXPECT_EQ(clicks, 2);
    EXPECT_THROW(box.setValue(3), RuntimeError);
}

TEST(TimerModel, IntervalBeyondThePlatformsRangeFailsAndKeepsTheOldOne) {
    VirtualEventLoop loop;
    Timer t("tmrInfo", loop, 30000);
    EXPECT_THROW(t.setInterval(65536), RuntimeError);
    EXPECT_THROW(t.setInterval(-1), RuntimeError);
    EXPECT_EQ(t.Interval(), 30000);
}

TEST(ControlArrayModel, AnIndexWithoutAnElementFails) {
    ControlArray<Label> titles("Title", 12);
    EXPECT_EQ(titles[11].Index(), 11);
    EXPECT_THROW(titles[12], RuntimeError);
}
