import QtQuick 2.15
import QtQuick.Layouts 1.15
import ".."
import "../components"
import "../theme"

// A newer version: the offer, its download, its start, or an error. Lies on top of the page, which stays as it is.
Rectangle {
    id: notice
    property CalibrationStatus status
    property Item mainButton: goButton.visible ? goButton : (phase === "failed" ? closeButton : null)
    signal wanted()
    signal givenUp()

    readonly property string phase: status.updatePhase
    readonly property bool known: status.updateTotal > 0
    function megabytes(bytes) { return Number(bytes / 1e6).toLocaleString(Qt.locale(), "f", 1) }
    function close() {
        if (phase === "fetching") givenUp()
        else if (phase !== "starting") status.updatePhase = ""
    }

    objectName: "updateNotice"
    visible: status.updateShown
    enabled: false  // a tap at the moment it appears was meant for the page below
    onVisibleChanged: enabled = false
    Timer {
        running: notice.visible
        interval: Theme.calmly
        onTriggered: notice.enabled = true
    }
    color: Qt.rgba(0, 0, 0, 0.7)
    MouseArea { anchors.fill: parent }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.length(900))
        height: Math.min(parent.height - 2 * Theme.margin, Theme.length(400))
        radius: 2 * Theme.radius
        color: Theme.panel
        ColumnLayout {
            anchors.fill: parent
            anchors.margins: Theme.margin * 1.5
            spacing: Theme.margin
            RowLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: 1.5 * Theme.margin
                Illustration {
                    Layout.preferredWidth: Theme.length(140)
                    Layout.preferredHeight: Theme.length(140)
                    drawing: "update"
                    opacity: notice.phase === "failed" ? 0.4 : 1
                }
                Statement {
                    objectName: "updateText"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    share: 0.42
                    text: {
                        switch (notice.phase) {
                        case "offered":
                            return qsTr("Version %1 is available.\nIt is downloaded and installed in a few minutes. The program then closes and starts again by itself.").arg(notice.status.updateVersion)
                        case "fetching":
                            return qsTr("Downloading version %1…").arg(notice.status.updateVersion) + "\n"
                                + (notice.status.updateInterrupted ? qsTr("The connection was lost. It is tried again…")
                                   : notice.known ? qsTr("%1 of %2 MB").arg(notice.megabytes(notice.status.updateReceived))
                                                                       .arg(notice.megabytes(notice.status.updateTotal))
                                   : qsTr("Connecting…"))
                        case "starting":
                            return qsTr("Starting the installation…\nThe program closes now and starts again by itself.")
                        case "failed":
                            return qsTr("The update did not succeed.") + "\n" + notice.status.updateFailure + " "
                                + qsTr("This version goes on working as before.")
                        default:
                            return ""
                        }
                    }
                }
            }
            ProgressLine {
                objectName: "updateProgress"
                Layout.fillWidth: true
                visible: notice.phase === "fetching"
                value: notice.known ? notice.status.updateReceived / notice.status.updateTotal : 0
            }
            RowLayout {
                Layout.fillWidth: true
                visible: notice.phase !== "starting"
                spacing: Theme.gap
                TouchButton {
                    id: closeButton
                    objectName: "updateCloseButton"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.preferredHeight: Theme.bigTarget
                    text: notice.phase === "offered" ? qsTr("Later")
                        : notice.phase === "fetching" ? qsTr("Cancel") : qsTr("Close")
                    onClicked: notice.close()
                }
                TouchButton {
                    id: goButton
                    objectName: "updateButton"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    visible: notice.phase === "offered" || (notice.phase === "failed" && notice.status.updateMayTryAgain)
                    main: true
                    text: notice.phase === "failed" ? qsTr("Try again") : qsTr("Update")
                    onClicked: notice.wanted()
                }
            }
        }
    }
}
