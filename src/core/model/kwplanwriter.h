#pragma once

#include <QByteArray>

class KWDocument;
struct KWViewSettings;

/// The text of a plan's file: always the same bytes for the same plan. Reports progress for each
/// element.
QByteArray writePlan(const KWDocument &document, const KWViewSettings &views);
