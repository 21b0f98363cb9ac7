// The program's own genre table: position = genre number. These spellings are the program's
// and differ in places from the player's GenreName texts, which the database holds.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

const QStringList& genreTable() {
    // clang-format off
    static const QStringList table = {
        "Blues", "Classic Rock", "Country", "Dance", "Disco", "Funk", "Grunge", "Hip -Hop", "Jazz", "Metal",
        "New Age", "Oldies", "Other", "Pop", "R& B", "Rap", "Reggae", "Rock", "Techno", "Industrial",
        "Alternative", "Ska", "Death Metal", "Pranks", "Soundtrack", "Euro -Techno", "Ambient", "Trip -Hop",
        "Vocal", "Jazz Funk", "Fusion", "Trance", "Classical", "Instrumental", "Acid", "House", "Game",
        "Sound Clip", "Gospel", "Noise", "AlternRock", "Bass", "Soul", "Punk", "Space", "Meditative",
        "Instrumental Pop", "Instrumental Rock", "Ethnic", "Gothic", "Darkwave", "Techno -Industrial",
        "Electronic", "Pop -Folk", "Eurodance", "Dream", "Southern Rock", "Comedy", "Cult", "Gangsta", "Top 40",
        "Christian Rap", "Pop/Funk", "Jungle", "Native American", "Cabaret", "New Wave", "Psychadelic", "Rave",
        "Showtunes", "Trailer", "Lo -Fi", "Tribal", "Acid Punk", "Acid Jazz", "Polka", "Retro", "Musical",
        "Rock & Roll", "Hard Rock"};
    // clang-format on
    return table;
}

void Form1::InitGenre() {
    for (const QString& genre : genreTable()) cboGenre.AddItem(genre);
    for (const QString& genre : genreTable()) ListGen.AddItem(genre);
}

}  // namespace sonarium
