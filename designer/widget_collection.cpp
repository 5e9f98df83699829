// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "widget_collection.h"

#include <my_classes/app_directory.h>
#include <my_classes/custom_tab.h>
#include <my_classes/custom_text_editor.h>
#include <my_classes/editable_tab_widget.h>

#include <QtGui/QIcon>

using namespace my_classes;
using namespace Qt::StringLiterals;

namespace {

/// What Designer is told about a class.
struct Description
{
    QString class_name; ///< without the namespace
    QString header;
    QString object_name;
    QString icon;
    QString tool_tip;
    QString base;
    bool is_container = false;
    QString page = {}; ///< what a new one holds
};

template<typename Widget>
class FormWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit FormWidget(Description description)
        : m_about(std::move(description))
    {
    }

    QString name() const override { return u"my_classes::"_s + m_about.class_name; }
    QString group() const override { return u"my_classes"_s; }
    QString toolTip() const override { return m_about.tool_tip; }
    QString whatsThis() const override { return m_about.tool_tip; }
    QString includeFile() const override { return u"my_classes/"_s + m_about.header; }
    QIcon icon() const override { return QIcon(app_directory + u"/icons/"_s + m_about.icon); }
    bool isContainer() const override { return m_about.is_container; }
    QWidget *createWidget(QWidget *parent) override { return new Widget(parent); }

    QString domXml() const override
    {
        return uR"(<ui language="c++" displayname="%1">
<widget class="my_classes::%1" name="%2">
<property name="geometry"><rect><x>0</x><y>0</y><width>600</width><height>400</height></rect></property>
%4</widget>
<customwidgets><customwidget><class>my_classes::%1</class><extends>%3</extends></customwidget></customwidgets>
</ui>)"_s.arg(m_about.class_name, m_about.object_name, m_about.base, m_about.page);
    }

private:
    Description m_about;
};

} // namespace

WidgetCollection::WidgetCollection()
{
    m_widgets.push_back(std::make_unique<FormWidget<CustomTextEditor>>(
        Description{u"CustomTextEditor"_s, u"custom_text_editor.h"_s, u"text_editor"_s, u"edit-bold.png"_s,
                    u"A rich-text editor with tool bar, statistics and spell checking"_s, u"QWidget"_s}));
    m_widgets.push_back(std::make_unique<FormWidget<CustomTab>>(
        Description{u"CustomTab"_s, u"custom_tab.h"_s, u"tab"_s, u"document-copy.png"_s,
                    u"One page of a tabbed document, with an editor"_s, u"QWidget"_s}));
    m_widgets.push_back(std::make_unique<FormWidget<EditableTabWidget>>(
        Description{u"EditableTabWidget"_s, u"editable_tab_widget.h"_s, u"tab_widget"_s, u"select-all.png"_s,
                    u"Document tabs whose titles are renamed in place"_s, u"QTabWidget"_s, true,
                    uR"(<widget class="my_classes::CustomTab" name="document">
<attribute name="title"><string>Document</string></attribute>
</widget>)"_s}));
}

QList<QDesignerCustomWidgetInterface *> WidgetCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const auto &widget : m_widgets)
        widgets.append(widget.get());
    return widgets;
}
