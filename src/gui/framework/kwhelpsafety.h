#pragma once

#include <QByteArray>
#include <QImage>

/// Whether the rich text can lay a page out in a moment: at most 256 KB with 3000 tags and 14
/// tables. A small page with tables in each other would keep the program busy for good.
bool isShowablePage(const QByteArray &html);

/// A picture in one of the plain formats PNG, JPEG and GIF; null for anything else. Other formats,
/// such as SVG, can name files of the disk.
QImage plainPicture(const QByteArray &bytes);
