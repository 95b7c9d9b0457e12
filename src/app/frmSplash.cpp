#include "app/frmSplash.h"

#include "app/Composition.h"
#include "core/adodb/Connection.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/faces.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/Theme.h"
#include "ui/widgets/UserWindows.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <cstdlib>

using namespace Qt::StringLiterals;

frmSplash::frmSplash(UserWindows& user) : Form(u"frmSplash"_s), m_user(user)
{
    SetDeleteOnUnload(false);
    BuildWindow();
    CenterForm(*this);
}

frmSplash::~frmSplash() = default;

void frmSplash::BuildWindow()
{
    setWindowTitle(u"Orvantine"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 32, 40, 32);
    layout->setSpacing(Theme::Spacing);
    const auto addLabel = [&](const QString& text, double scale, bool bold) {
        auto* label = new QLabel(text, this);
        QFont face = label->font();
        face.setPointSizeF(face.pointSizeF() * scale);
        face.setBold(bold);
        label->setFont(face);
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
        return label;
    };
    addLabel(QString(), 1, false)->setPixmap(Pictures::Icon(u"orvantine"_s).pixmap(72, 72));
    addLabel(u"Orvantine"_s, 2.4, true);
    addLabel(u"By Pelmar"_s, 1, false);
    layout->addSpacing(16);
    addLabel(u"Loading"_s, 1, false);
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(u"PBar"_s);
    m_bar->setAccessibleName(u"Loading"_s);
    m_bar->setRange(0, 100);
    m_bar->setTextVisible(false);
    layout->addWidget(m_bar);
    setFixedSize(layout->sizeHint().expandedTo(QSize(380, 300)));
}

void frmSplash::Form_Activate()
{
    if (m_activated)
        return;
    m_activated = true;
    Trap(u"frmSplash Activate Error #"_s, Icon::Critical, [this] { Start(); });
}

void frmSplash::Start()
{
    OpenDatabase();
    CenterForm(*this);
    EndWherePrevInstance();
    CenterForm(*this);
    LoadCategories();
    m_program = std::make_unique<Composition>();
    m_user.SetStatusBar([this](const std::optional<QString>& message) { m_program->Main().ShoWait(message); });
    m_program->Tree().FillTree();
    QElapsedTimer sincePaint;
    sincePaint.start();
    LoadContacts([this](int percent) { m_bar->setValue(percent); }, [&sincePaint] { DoEvents(sincePaint); });
    if (auto* panels = Face<AlertPanelsFace>::Get()) {
        panels->FillAlertGrid(false);
        panels->FillAlertGrid(true);
    }
    ShoWait(u"Ready"_s);
    m_program->Main().Show();
    Unload();
}

void frmSplash::OpenDatabase()
{
    if (gConn.State() == ObjectState::Open)
        return;
    gConn.Open(u"Driver={Microsoft Access Driver (*.mdb)};Dbq="_s + gAppPath +
               u"\\Data\\Contacts.mdb;Password=kostrevy48"_s);
}

void frmSplash::EndWherePrevInstance()
{
    // The file is open by now; nothing was written to it.
    if (!m_instance.PrevInstance())
        return;
    MsgBox(u"Orvantine is Already Running."_s, Buttons::Ok, Icon::Information, u"Orvantine 1.0 "_s);
    std::_Exit(EXIT_SUCCESS);
}

void frmSplash::DoEvents(QElapsedTimer& sincePaint)
{
    constexpr int frame = 40;
    if (sincePaint.elapsed() < frame)
        return;
    // The splash repaints; no window takes input while the program comes up.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    sincePaint.restart();
}

void frmSplash::EscapePressed()
{
    Unload();
}
