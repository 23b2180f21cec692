import QtQuick 2.15
import "../components"

// Asked before photos are discarded, because the button lies where a thumb may rest.
Question {
    id: question
    mainButton: stayButton
    signal confirmed()

    objectName: "restartQuestion"
    text: qsTr("Start over?\nThe photos and what was found so far would be lost.")
    Question.Answer {
        objectName: "restartConfirmButton"
        text: qsTranslate("CaptureScreen", "Restart")
        onClicked: {
            question.visible = false
            question.confirmed()
        }
    }
    Question.Answer {
        id: stayButton
        objectName: "restartStayButton"
        main: true
        text: qsTranslate("LeaveQuestion", "Stay")
        onClicked: question.visible = false
    }
}
