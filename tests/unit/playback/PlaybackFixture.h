#pragma once
// The started program with a queue of fake songs in /m/ and numbered button pictures, so a test
// can tell which picture of the image list a button shows.
#include "ProgramFixture.h"

namespace sonarium {

class PlaybackFixture : public ProgramFixture {
protected:
    static constexpr int SongFrames = 100;  // 2.6 s at the fake's 26 ms a frame
    static constexpr int SongMs = 2600;

    void SetUp() override {
        ProgramFixture::SetUp();
        program().Main();
        for (int i = 1; i <= 24; ++i) form1().ImageListB.Add(i, Picture::filled(1, 1, 0xFF000000u + i));
        form1().imgGreenBall.setPicture(Picture::filled(1, 1, 0xFF00FF00u));
        form1().imgRedBall.setPicture(Picture::filled(1, 1, 0xFFFF0000u));
        tc.dialogs.clear();
    }

    // Rows added as a user adds them: text, then the directory at the new index.
    void queue(const QStringList& titles, const QString& dir = QStringLiteral("/m/")) {
        for (const QString& t : titles) {
            form1().lstSongs.AddItem(t);
            M().SongPath[std::size_t(form1().lstSongs.NewIndex())] = dir;
            if (!dir.isEmpty()) tc.mp3.addFile(dir + t + ".MP3", SongFrames, SongMs / 1000.0f);
        }
    }
    void play() { form1().BtnPlay.MouseUp(LeftButton, 0, 0, 0); }
    void pause() { form1().BtnPause.MouseUp(LeftButton, 0, 0, 0); }
    void stop() { form1().BtnStop.MouseUp(LeftButton, 0, 0, 0); }

    // True when the control shows picture `index` of the image list.
    bool shows(const Image& control, int index) {
        return control.picture().sameAs(form1().ImageListB.ListImage(index));
    }
    int count(const QString& call) const { return int(tc.mp3.calls().count(call)); }
};

}  // namespace sonarium
