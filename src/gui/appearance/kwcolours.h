#pragma once

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

/// How a floor plan looks; at first like a new plan.
struct KWColours
{
    QColor seats = Qt::white;
    QColor seatsEdge = Qt::black;
    QColor tables = Qt::white;
    QColor tablesEdge = Qt::black;
    QColor inside = Qt::white;
    QColor outside = Qt::gray;
    QColor seatsText = Qt::black;
    QColor tableText = Qt::black;
    QFont font;
    QColor selected = highlightColour();

    bool operator==(const KWColours &) const = default;

    /// The application's own colour of what is selected.
    static QColor highlightColour()
    {
        return QGuiApplication::palette().color(QPalette::Highlight);
    }
};
