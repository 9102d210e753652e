// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "jsonconfigloader.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

JsonConfigLoader::JsonConfigLoader(QObject *parent) : QObject(parent) {}

JsonConfigLoader::~JsonConfigLoader()
{
    delete m_document;
}

QJsonDocument *JsonConfigLoader::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "Load config failed, can not open file:" << path;
        return nullptr;
    }
    // JSON is UTF-8 by definition, so the bytes go to the parser as they are. The former document is let go
    // of and not deleted: somebody may still read it, and a process loads its configuration once.
    m_document = new QJsonDocument(QJsonDocument::fromJson(file.readAll()));
    return m_document;
}

void JsonConfigLoader::unload()
{
    qDebug() << "Unload json config, do nothing";
}
