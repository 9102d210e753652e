// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QWidget>
#include <QtPlugin>

/// The smallest plugin with widgets: what loading costs without our code.
class EmptyPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.contact-plugin.benchmark.empty")

public:
    Q_INVOKABLE QWidget *widget() const { return new QWidget; }
};

#include "emptyplugin.moc"
