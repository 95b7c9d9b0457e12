#include "core/ErrorOf.h"
#include "support/Windows.h"
#include "ui/widgets/CommonDialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_CommonDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { CommonDialog::SetSource({}); }
    void the_default_extension();
    void a_file_that_is_there_is_opened_as_it_was_chosen();
    void a_cancel_leaves_the_name_or_raises();
    void the_window_gives_what_is_typed();
    void the_window_can_be_cancelled();

private:
    QTemporaryDir m_folder;
};

void tst_CommonDialog::the_default_extension()
{
    CommonDialog dialog;
    // It gives way to one that was typed, and is not looked for in folders.
    for (const auto& [typed, title] :
         {std::pair(u"contacts"_s, u"contacts.ocm"_s), std::pair(u"contacts.txt"_s, u"contacts.txt"_s),
          std::pair(u"my.folder/contacts"_s, u"contacts.ocm"_s)}) {
        CommonDialog::SetSource([typed = typed](const CommonDialog&, bool) { return typed; });
        dialog.InitDir = m_folder.path();
        dialog.DefaultExt = u"ocm"_s;
        dialog.ShowSave(nullptr);
        QCOMPARE(dialog.FileTitle(), title);
        QVERIFY(dialog.FileName.startsWith(m_folder.path()));
    }
}

void tst_CommonDialog::a_file_that_is_there_is_opened_as_it_was_chosen()
{
    QFile file(m_folder.filePath(u"Monday"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    CommonDialog::SetSource([](const CommonDialog&, bool) { return u"Monday"_s; });
    CommonDialog dialog;
    dialog.InitDir = m_folder.path();
    dialog.DefaultExt = u"ocm"_s;
    dialog.ShowOpen(nullptr);
    QCOMPARE(dialog.FileTitle(), u"Monday"_s);
    dialog.ShowSave(nullptr);
    QCOMPARE(dialog.FileTitle(), u"Monday.ocm"_s);
}

void tst_CommonDialog::a_cancel_leaves_the_name_or_raises()
{
    CommonDialog::SetSource([](const CommonDialog&, bool) { return QString(); });
    CommonDialog dialog;
    dialog.FileName = u"before"_s;
    dialog.ShowOpen(nullptr);
    QCOMPARE(dialog.FileName, u"before"_s);
    dialog.CancelError = true;
    QCOMPARE(ErrorOf([&] { dialog.ShowOpen(nullptr); }), 32755);
}

void tst_CommonDialog::the_window_gives_what_is_typed()
{
    const WhenWindowOpens window(
        u"The file window"_s, [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); },
        [](QWidget& shown) {
            shown.findChild<QLineEdit*>()->setText(u"letters"_s);
            TypeKey(shown, Qt::Key_Return);
        });
    CommonDialog dialog;
    dialog.InitDir = m_folder.path();
    dialog.DefaultExt = u"ocm"_s;
    dialog.ShowSave(nullptr);
    QCOMPARE(dialog.FileName, QDir(m_folder.path()).filePath(u"letters.ocm"_s));
}

void tst_CommonDialog::the_window_can_be_cancelled()
{
    const WhenWindowOpens window(
        u"The file window"_s, [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); },
        [](QWidget& shown) { TypeKey(shown, Qt::Key_Escape); });
    CommonDialog dialog;
    dialog.ShowOpen(nullptr);
    QVERIFY(dialog.FileName.isEmpty());
}

QTEST_MAIN(tst_CommonDialog)
#include "tst_CommonDialog.moc"
