import QtQuick 2.15
import "../components"

// Asked only when leaving would lose something.
Question {
    id: question
    mainButton: stayable ? stayButton : storeButton
    property bool firstCameraStorable: false
    property bool stayable: true
    signal left()
    signal firstCameraStored()

    function stay() { if (stayable) visible = false }

    objectName: "leaveQuestion"
    text: qsTr("Leave without storing?\nThe photos and what was found so far would be lost. The camera keeps its old calibration.")
    Question.Answer {
        objectName: "leaveButton"
        text: qsTr("Leave")
        onClicked: question.left()
    }
    Question.Answer {
        id: storeButton
        objectName: "storeFirstCameraButton"
        visible: question.firstCameraStorable
        main: !question.stayable
        text: qsTr("Store first camera")
        onClicked: question.firstCameraStored()
    }
    Question.Answer {
        id: stayButton
        objectName: "stayButton"
        visible: question.stayable
        main: true
        text: qsTr("Stay")
        onClicked: question.stay()
    }
}
