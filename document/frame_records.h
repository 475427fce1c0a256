#pragma once

#include "document/records.h"

#include <vector>

namespace zeltrona::document {

/// The records of the shown frame, owned by the main window and lent to procedures.
/// Shape: no array ever has zero elements; an array without data holds one element in its empty state.
struct FrameRecords {
    FrameRecords();

    std::vector<PlayerRec> offPlayers;
    std::vector<PlayerRec> defPlayers;
    std::vector<BallRec> balls;
    std::vector<PathRec> offPaths;
    std::vector<PathRec> defPaths;
    std::vector<PathRec> ballPaths;
    std::vector<LineRec> lines;
    std::vector<TriangleRec> triangles;
    std::vector<ShadowRec> shadows;
    std::vector<TxtPicRec> txtPics;

    friend bool operator==(const FrameRecords&, const FrameRecords&) = default;
};

/// The element of an empty array: x 0, y 1000, label "0"; it lies below the board and is painted unseen.
PlayerRec emptyPlayer();
/// Whether a record has the values of `emptyPlayer` that count: x, y and label.
bool isEmptyPlayer(const PlayerRec& player);
/// Owner 0 with one point (0, 0).
PathRec emptyPath();
/// One point (0, 1000).
LineRec emptyLine();
/// Font size 8, everything else nothing.
TxtPicRec emptyTxtPic();

/// The resets make the array one element long, in its empty state.
void resetPlayers(std::vector<PlayerRec>& players);
void resetPaths(std::vector<PathRec>& paths);
void resetLines(std::vector<LineRec>& lines);
void resetTriangles(std::vector<TriangleRec>& triangles);
void resetShadows(std::vector<ShadowRec>& shadows);
void resetBalls(std::vector<BallRec>& balls);
void resetTxtPics(std::vector<TxtPicRec>& txtPics);

/// The has-data tests look at the length and at element 0 alone, and not at every field of it, so that a real
/// object that equals the empty state counts as absent. Files in use rely on it.
/// An array of zero elements, which no procedure leaves behind, has none.
bool hasPlayers(const std::vector<PlayerRec>& players);
/// Looks at element 0 only: false for owner 0 with a first point (0, 0), however many paths follow.
bool hasPaths(const std::vector<PathRec>& paths);
bool hasLines(const std::vector<LineRec>& lines);
bool hasTriangles(const std::vector<TriangleRec>& triangles);
/// The colour does not count.
bool hasShadows(const std::vector<ShadowRec>& shadows);
bool hasBalls(const std::vector<BallRec>& balls);
/// The text and the colour do not count.
bool hasTxtPics(const std::vector<TxtPicRec>& txtPics);

} // namespace zeltrona::document
