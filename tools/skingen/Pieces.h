#pragma once
// The painters of the small pictures of Buttons.bmp, shared by the cut table and the image list.
#include <QString>

#include "Sheets.h"

namespace sonarium::skingen {

// A command plate with its caption.
void paintCommand(QPainter& p, const QRect& r, const Theme& t, const QString& caption);

enum class Glyph { Play, Pause, Stop, Fade };
// A transport button: raised or pushed in, its sign and status light dark or lit in `light`.
void paintTransport(QPainter& p, const QRect& r, const Theme& t, Glyph g, bool pressed, const QColor* light);

// The rest, each named after the control that shows it.
void paintFaderKnob(QPainter& p, const QRect& r, const Theme& t);
void paintSongKnob(QPainter& p, const QRect& r, const PieceContext& c);
void paintSongTrack(QPainter& p, const QRect& r, const Theme& t);
void paintColumnMenu(QPainter& p, const QRect& r, const PieceContext& c);
void paintColumnFace(QPainter& p, const QRect& r, const Theme& t, int kind);  // 0 plain, 1 order, 2 filter
void paintSizeButton(QPainter& p, const QRect& r, const Theme& t, bool rollUp);
void paintMonoStereo(QPainter& p, const QRect& r, const Theme& t, bool stereo);
void paintVuLamp(QPainter& p, const QRect& r, const PieceContext& c, const QColor& glow, bool lit);
void paintBall(QPainter& p, const QRect& r, const PieceContext& c, const QColor& glow);
void paintRepeatSign(QPainter& p, const QRect& r, const PieceContext& c);
void paintShuffle(QPainter& p, const QRect& r, const PieceContext& c);
void paintSpeedButton(QPainter& p, const QRect& r, const Theme& t, bool faster);
void paintToneButton(QPainter& p, const QRect& r, const Theme& t);
void paintDeckLegend(QPainter& p, const QRect& r, const PieceContext& c, const mainskin::Rect& place,
                     const QString& text);
void paintEncoderBadge(QPainter& p, const QRect& r, const Theme& t);
void paintPageButton(QPainter& p, const QRect& r, const Theme& t, bool up);
void paintInfoArrow(QPainter& p, const QRect& r, const Theme& t, bool right);
void paintDatabaseButton(QPainter& p, const QRect& r, const Theme& t);
void paintInfoButton(QPainter& p, const QRect& r, const Theme& t, bool edit);

}  // namespace sonarium::skingen
