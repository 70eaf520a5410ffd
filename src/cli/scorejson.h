#pragma once

#include "core/model/kwscore.h"

#include <QJsonObject>

class KWDocument;

/// How the seating scores, as JSON: the seats of each table, the guests without a seat and all
/// wishes.
QJsonObject scoreToJson(const KWDocument &document);

/// The points of a seat by the names of their entries.
QJsonObject pointsToJson(const KWSeatScore &score);
/// "next to" and the like, for a value of KWScore::Proximity.
QString wishWord(int value);
