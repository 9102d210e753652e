// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QJsonDocument;
QT_END_NAMESPACE

/// Reads one JSON file at a time and owns the document of the last one.
class JsonConfigLoader : public QObject
{
    Q_OBJECT

public:
    explicit JsonConfigLoader(QObject *parent = nullptr);
    ~JsonConfigLoader() override;

    /**
     * Null when the file cannot be read, is not a regular file or is larger than 1 MB; a null document when
     * it is not JSON. Owned by the loader. A document loaded before is never deleted, since its caller may
     * still read it.
     */
    virtual QJsonDocument *load(const QString &path);
    /// Does nothing: documents live at least as long as the loader.
    virtual void unload();

private:
    QJsonDocument *m_document = nullptr;
};
