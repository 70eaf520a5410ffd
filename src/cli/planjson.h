#pragma once

#include <QJsonObject>

class KWDocument;
struct KWViewSettings;

/// The whole plan as JSON, its settings, guests, groups, tables, wishes and scores. Guests, groups
/// and tables stand for each other by list position from 0.
QJsonObject planToJson(const KWDocument &document, const KWViewSettings &views);
