#pragma once
// The program on fakes, but with the real data control on a library made in the test's own
// directory (the default name, SonariumData.mdb), attached as the first activation does.
#include "ProgramFixture.h"
#include "engine/data/SqliteDataControl.h"

namespace sonarium {

class LibraryFixture : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        programOn(data).Main();
        form1().Form_Activate();  // the first activation attaches the library
        tc.dialogs.clear();
    }

    // A record as the scanner would store it, for tests that need a library with content.
    void addRecord(const QString& dir, const QString& file, const QString& artist = {}, const QString& album = {},
                   const QString& genre = {}) {
        Recordset& r = data.recordset();
        r.AddNew();
        r.Fields(QStringLiteral("Path\\File")).setValue(dir + u'/' + file + QStringLiteral(".MP3"));
        r.Fields(QStringLiteral("Path")).setValue(dir);
        r.Fields(QStringLiteral("File")).setValue(file);
        r.Fields(QStringLiteral("Artist")).setValue(artist);
        r.Fields(QStringLiteral("Album")).setValue(album);
        r.Fields(QStringLiteral("Genre")).setValue(genre);
        r.Update();
    }

    // Four songs in two folders: two by Queen, two on the album Gold, one without an album.
    void addFourSongs() {
        addRecord("/m/Rock", "Song A", "Queen", "Jazz");
        addRecord("/m/Rock", "Song B", "Abba", "Gold");
        addRecord("/m/Pop", "Song C", "Blondie", "Gold");
        addRecord("/m/Pop", "Song D", "Queen", "");
    }

    SqliteDataControl data;
};

}  // namespace sonarium
