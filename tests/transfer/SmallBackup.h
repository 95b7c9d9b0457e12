#pragma once

#include "Agency.h"

// Files made of a backup of the small agency.

/// A backup of the small agency, made once.
inline const QList<QByteArray>& Backup()
{
    static const QList<QByteArray> sections = [] {
        Agency agency(Agency::File::Small);
        QList<QByteArray> made = SectionsOf(agency.Backup(QStringLiteral("all.xml")));
        for (QByteArray& section : made)
            section = section.trimmed();
        return made;
    }();
    return sections;
}

inline QByteArray Joined(const QList<QByteArray>& sections)
{
    return sections.join();
}

/// The backup with one text in one of its sections changed.
inline QByteArray Changed(Section section, const QByteArray& from, const QByteArray& to)
{
    QList<QByteArray> sections = Backup();
    if (!sections[section].contains(from))
        qFatal("the backup has no %s", from.constData());
    sections[section].replace(from, to);
    return Joined(sections);
}

inline QString Written(const Agency& agency, const QByteArray& bytes)
{
    QFile file(agency.FileOf(QStringLiteral("given.xml")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("the file can't be written");
    return file.fileName();
}

inline QByteArray BytesOf(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(name));
    return file.readAll();
}

/// Whether the program still works: a new contact can be saved.
inline bool IsUsable()
{
    Contact contact;
    contact.FirstName = QStringLiteral("New");
    contact.LastName = QStringLiteral("Comer");
    return contact.AddToDB(1) > 0;
}
