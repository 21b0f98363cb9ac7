// When StreamEnd reaches the program, in the situations the transport meets. Each case is a
// script of steps on a new rule: "open", "close", "run:a" (a run starts, called a), "mute:a"
// (Close or Open ended run a while live), "stop:a" (a Stop that finds no run raises an end,
// called a), "stop:-" (it raises nothing), "end:a" (a's end reaches the program), "lost:a" (it
// does not).
#include <gtest/gtest.h>

#include <QMap>

#include "controls/StreamEndRule.h"

using namespace sonarium;

TEST(StreamEndRule, EachEndReachesTheProgramOnceAndNeverEndsANewerRun) {
    const char* scripts[] = {
        // Nothing open, the run's own end on its way, or the run ended: Stop raises nothing.
        "stop:- open run:a stop:- end:a lost:a stop:-",
        // A loaded song standing silent is ended by Stop, once.
        "open stop:a stop:- end:a",
        // A click loads the song; Play stops the player, then reloads the song and starts it:
        // the end raised by that Stop must not end the new run.
        "open stop:a close open run:b lost:a end:b",
        // A run that had ended gets its end through a Close, not through an Open.
        "open run:a close end:a open run:b open lost:b",
        // A paused song replaced by a click (GetSong closes the player under it), then Pause
        // pressed again: the new run settles what was owed.
        "open run:a mute:a open lost:a run:b stop:- end:b",
        // A scan closes the player during play and leaves it closed: the transport's Stop waits
        // for an end, so one must come, and only once.
        "open run:a mute:a open close stop:b end:b stop:-",
    };
    for (const char* script : scripts) {
        StreamEndRule r;
        QMap<QString, StreamEndRule::Token> runs;
        for (const QString& step : QString(script).split(u' ')) {
            const QString name = step.section(u':', 1);
            StreamEndRule::Token& run = runs[name];
            SCOPED_TRACE(QString("%1, at %2").arg(script, step).toStdString());
            switch (step[0].toLatin1()) {
            case 'o': r.opened(); break;
            case 'c': r.closed(); break;
            case 'r': run = r.runStarted(); break;
            case 'm': r.runSilenced(run); break;
            case 's': EXPECT_EQ((run = r.stopWithoutRun()) != 0, name != "-"); break;
            default: EXPECT_EQ(r.deliver(run), step[0] == u'e');
            }
        }
    }
}
