#pragma once

#include <QByteArray>
#include <QImage>

/// Whether the rich text can lay a page out in a moment: not too long and not too deeply nested. A
/// small page with thousands of tables in each other would keep the program busy for good.
bool isShowablePage(const QByteArray &html);

/// A picture in one of the plain formats PNG, JPEG and GIF; null for anything else. Other formats,
/// such as SVG, can name files of the disk.
QImage plainPicture(const QByteArray &bytes);
