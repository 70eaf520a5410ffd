#include "gui/appearance/kwpixmaps.h"

#include "core/model/kwguest.h"
#include "core/model/kwtable.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

#include <map>
#include <memory>

// Q_INIT_RESOURCE works outside of namespaces only.
void initAppearanceResources()
{
    Q_INIT_RESOURCE(ambrelune);
}

namespace {

struct Source
{
    const char *name;
    int size;
};

constexpr std::array sources{
    Source{"guest-undefined-adult", 16},
    Source{"guest-undefined-child", 16},
    Source{"guest-male-adult", 16},
    Source{"guest-male-child", 16},
    Source{"guest-female-adult", 16},
    Source{"guest-female-child", 16},
    Source{"locked", 16},
    Source{"vip", 16},
    Source{"accepted", 16},
    Source{"guest-single", 16},
    Source{"guest-couple", 16},
    Source{"guest-family", 16},
    Source{"guest-friends", 16},
    Source{"table-circular", 16},
    Source{"table-rectangular", 16},
    Source{"table-head-top", 16},
    Source{"table-head-right", 16},
    Source{"table-head-bottom", 16},
    Source{"table-head-left", 16},
    Source{"table-custom", 16},
    Source{"seat-empty", 16},
    Source{"proximity-next-to", 16},
    Source{"proximity-near-to", 16},
    Source{"proximity-neutral", 16},
    Source{"proximity-not-next-to", 16},
    Source{"proximity-not-near-to", 16},
    Source{"pane-floor-plan", 16},
    Source{"pane-schematic", 16},
    Source{"pane-table-chart", 16},
    Source{"pane-guest-chart", 16},
    Source{"pane-statistics", 16},
    Source{"pane-guests", 16},
    Source{"pane-groups", 16},
    Source{"pane-proximity", 16},
    Source{"close-pane", 16},
    Source{"guest-single", 32},
    Source{"guest-couple", 32},
    Source{"guest-family", 32},
    Source{"guest-friends", 32},
    Source{"table-circular", 32},
    Source{"table-rectangular", 32},
    Source{"table-head-top", 32},
    Source{"table-head-right", 32},
    Source{"table-head-bottom", 32},
    Source{"table-head-left", 32},
    Source{"table-custom", 32},
    Source{"whats-this", 32},
    Source{"left-pane", 32},
    Source{"top-pane", 32},
    Source{"bottom-pane", 32},
    Source{"ambrelune", 48},
};

QPixmap drawn(const Source &source, qreal devicePixelRatio)
{
    const int pixels = qRound(source.size * devicePixelRatio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(source.name)));
    QPainter painter(&pixmap);
    renderer.render(&painter, pixmap.rect());
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace

KWPixmaps::KWPixmaps(qreal devicePixelRatio)
{
    static_assert(sources.size() == PictureCount);
    static_assert(EmptySeat - TableCircular == KWTable::ShapeCount);
    initAppearanceResources();
    for (std::size_t picture = 0; picture < PictureCount; ++picture)
        m_pixmaps[picture] = drawn(sources[picture], devicePixelRatio);
}

const KWPixmaps &KWPixmaps::instance(qreal devicePixelRatio)
{
    // Never deleted: static destructors run when the application, which pixmaps need, is gone.
    static auto &sets = *new std::map<qreal, std::unique_ptr<const KWPixmaps>>;
    const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : qApp->devicePixelRatio();
    std::unique_ptr<const KWPixmaps> &set = sets[ratio];
    if (!set)
        set.reset(new KWPixmaps(ratio));
    return *set;
}

const QPixmap &KWPixmaps::guest(int gender, int age) const
{
    if (gender < KWGuest::Undefined || gender > KWGuest::Female || age < KWGuest::Adult ||
        age > KWGuest::Child)
        return m_none;
    const int index = gender * 2 + age;
    return at(static_cast<std::size_t>(index));
}

const QPixmap &KWPixmaps::ofShape(Picture circular, int shape) const
{
    if (shape < 0 || shape >= KWTable::ShapeCount)
        return m_none;
    return at(circular + static_cast<std::size_t>(shape));
}
