#pragma once

#include "gui/framework/kwview.h"

#include <QVBoxLayout>
#include <QWidget>

class KWDocument;

/// A page of a tab container that holds a view, whatever the kind of view.
class KWViewPage : public QWidget
{
public:
    using QWidget::QWidget;
    virtual KWView *view() const = 0;
    /// The panel above the view.
    virtual QWidget *panel() const = 0;
};

/// A view with its filter panel above it. The pair owns both. With `viewFirst` the view is made
/// first and handed to the panel's constructor; otherwise the panel is made first and is given the
/// view by its setView(). What is made first stands on top.
template <typename View, typename Filter>
class KWViewAndFilter : public KWViewPage
{
public:
    KWViewAndFilter(QWidget *parent, KWDocument *document, bool viewFirst)
        : KWViewPage(parent)
    {
        auto *box = new QVBoxLayout(this);
        box->setContentsMargins({});
        box->setSpacing(0);
        if (viewFirst) {
            m_view = new View(this, document);
            m_filter = new Filter(this, m_view);
            box->addWidget(m_view);
            box->addWidget(m_filter);
        } else {
            m_filter = new Filter(this, nullptr);
            m_view = new View(this, document);
            m_filter->setView(m_view);
            box->addWidget(m_filter);
            box->addWidget(m_view);
        }
        setVerticalStretch(m_view, 1);
        setVerticalStretch(m_filter, 0);
    }

    View *view() const override { return m_view; }
    QWidget *panel() const override { return m_filter; }
    Filter *filter() const { return m_filter; }

private:
    static void setVerticalStretch(QWidget *widget, int stretch)
    {
        QSizePolicy policy = widget->sizePolicy();
        policy.setVerticalStretch(stretch);
        widget->setSizePolicy(policy);
    }

    View *m_view;
    Filter *m_filter;
};
