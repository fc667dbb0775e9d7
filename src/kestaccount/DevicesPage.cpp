#include "kestaccount/DevicesPage.h"

#include "kestaccount/AccountClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/Guarded.h"
#include "kestaccount/PageContent.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/PageRow.h"
#include "kestaccount/Questions.h"
#include "kestaccount/RelativeTime.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kEmptyIndent = 12;

} // namespace

DevicesPage::DevicesPage(Client *client, QWidget *parent)
    : AccountPage(tr("Devices"), parent)
    , m_client(client)
{
}

void DevicesPage::refresh()
{
    m_client->accountClient()->getDevices(
        guarded(this, [this](const QList<Device> &devices) { rebuild(devices); }));
}

void DevicesPage::rebuild(const QList<Device> &devices)
{
    auto *content = new PageContent;
    content->addSection(tr("Registered Devices"),
                        tr("Devices that have synced with your account."));
    for (const Device &device : devices)
        addDevice(content, device);
    if (devices.isEmpty()) {
        auto *label = new PageLabel(tr("No devices registered."));
        label->setObjectName(u"emptyLabel"_s);
        label->setContentsMargins(kEmptyIndent, 0, 0, 0);
        content->addLabel(label);
    }
    setContent(content);
}

void DevicesPage::addDevice(PageContent *content, const Device &device)
{
    const QString name = device.deviceName.isEmpty() ? tr("Unknown Device") : device.deviceName;
    auto *row = new PageRow;
    row->setObjectName(u"deviceRow"_s);
    auto *nameLabel = new PageLabel({});
    nameLabel->setTextFormat(Qt::RichText);
    nameLabel->setText(u"<b>%1</b>"_s.arg(name.toHtmlEscaped()));
    nameLabel->wrapWords();
    row->addLine(nameLabel);
    QString software = device.platform;
    if (!device.appVersion.isEmpty())
        software += tr("  ·  v%1").arg(device.appVersion);
    if (!software.isEmpty())
        row->addLine(PageLabel::muted(software, -1));
    row->addLine(PageLabel::muted(relativeTime(device.lastSyncAt), -1));
    connect(row->addButton(tr("Remove"), u"removeDeviceButton"_s, name), &QPushButton::clicked,
            this, [this, id = device.id, name] { remove(id, name); });
    content->addRow(row);
}

void DevicesPage::remove(const QString &deviceId, const QString &name)
{
    if (!confirm(this, tr("Remove Device"), tr("Remove %1?").arg(name)))
        return;
    m_client->accountClient()->removeDevice(deviceId);
    Q_EMIT succeeded(tr("Device removed."));
    QTimer::singleShot(kSettlingMs, this, &DevicesPage::refresh);
}

} // namespace KestAccount
