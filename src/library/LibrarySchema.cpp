#include "library/LibrarySchema.h"

namespace sonarium {

QStringList libraryStatements() {
    QStringList s = {QStringLiteral(
        "Create Table SongData ( Path Text(80), File Text(50), [Song Title] Text(30), Artist Text(30), "
        "Album Text(30), Comment Text(30), Genre Text(30), Duration Text(8), Year Text(4), Tempo Text(30), "
        "Lyricist Text(30), Composer Text(30), [Key] Text(20), [Web Address] Text(40), [E-Mail] Text(30), "
        "Info Memo, [Path\\File] Text(100));")};
    const char* indexed[] = {"Path",     "File",     "[Song Title]", "Artist",        "Album",
                             "Comment",  "Genre",    "Duration",     "Year",          "Tempo",
                             "Lyricist", "Composer", "[Key]",        "[Web Address]", "[E-Mail]"};
    int n = 1;
    for (const char* column : indexed)
        s << QStringLiteral("Create Index NewIndex%1 On SongData(%2) With Ignore Null;")
                 .arg(n++)
                 .arg(QLatin1String(column));
    s << QStringLiteral("Create Index NewIndex17 On SongData([Path\\File]) With Primary;");
    return s;
}

}  // namespace sonarium
