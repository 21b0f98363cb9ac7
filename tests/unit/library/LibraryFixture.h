#pragma once
// The program on fakes, but with the real data control on a library made in the test's own
// directory (the default name, SonariumData.mdb), attached as the first activation does; and
// the helpers the library's tests share.
#include <sqlite3.h>

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
    void addRecord(const QString& dir, const QString& file, const QString& artist = {},
                   const QString& album = {}) {
        sql(QString("INSERT INTO SongData ([Path\\File], Path, File, Artist, Album) "
                    "VALUES ('%1/%2.MP3', '%1', '%2', '%3', '%4')")
                .arg(dir, file, artist, album)
                .toUtf8());
    }

    // Four songs in two folders: two by Queen, two on the album Gold, one without an album.
    void addFourSongs() {
        addRecord("/m/Rock", "Song A", "Queen", "Jazz");
        addRecord("/m/Rock", "Song B", "Abba", "Gold");
        addRecord("/m/Pop", "Song C", "Blondie", "Gold");
        addRecord("/m/Pop", "Song D", "Queen", "");
    }

    // A column menu's entry ("" dismisses the menu), on the record at `row` of the view if given.
    void menu(int column, const char* entry, int row = -1) {
        if (row >= 0) {
            data.recordset().MoveFirst();
            for (int i = 0; i < row; ++i) data.recordset().MoveNext();
        }
        tc.dialogs.answerPopup(QString::fromLatin1(entry));
        form1().imgDown[column].Click();
    }
    QString source() const { return data.RecordSource(); }
    QString current(const char* field) {
        return data.recordset().Fields(QString::fromLatin1(field)).Value().toString();
    }

    // Straight into the library file, behind the data control's back: the first column of the
    // rows the statement gives. A statement that changes the file has the view read again.
    QStringList sql(const QByteArray& statement, bool refresh = true) {
        sqlite3* db = nullptr;
        EXPECT_EQ(sqlite3_open(path("SonariumData.mdb").toUtf8().constData(), &db), SQLITE_OK);
        QStringList out;
        const auto row = [](void* rows, int, char** values, char**) {
            static_cast<QStringList*>(rows)->append(QString::fromUtf8(values[0] ? values[0] : ""));
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(db, statement.constData(), row, &out, nullptr), SQLITE_OK)
            << sqlite3_errmsg(db);
        sqlite3_close(db);
        if (refresh) {
            data.Refresh();
            form1().UpdateRecordCount();
        }
        return out;
    }
    // One column of every record of the library file, in the order they were added.
    QStringList column(const char* name) {
        return sql(QByteArray("SELECT \"") + name + "\" FROM SongData ORDER BY rowid", false);
    }

    SqliteDataControl data;
};

}  // namespace sonarium
