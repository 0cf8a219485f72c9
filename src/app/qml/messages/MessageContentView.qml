import QtQuick
import Vost.App
import Vost.Model
import Vost.Render

// What a message holds, shown by the widget for its kind: photos and albums,
// files, videos and animations, voice messages and audio, stickers, places,
// contacts, polls, calls and dice. Text alone needs none. The one place where a
// kind picks its widget.
Loader {
    id: view

    required property int kind
    required property var details
    required property string messageID
    // The downloaded file; "" while it arrives.
    required property string mediaPath
    required property var albumItems
    required property real downloadProgress
    required property bool outgoing
    required property string stickerEmoji
    required property int stickerFormat
    required property bool onScreen
    required property AudioPlayback playback
    property real maximumWidth: 320

    onLoaded: item.shown = Qt.binding(() => view.onScreen)

    // The viewer for a photo or video of the message.
    signal opened(string messageID)
    signal contactMessageRequested(string userID)

    active: kind !== MessageContent.Text && kind !== MessageContent.Other
    // An unloaded Loader keeps the size of its last item; a delegate reused for a
    // text message must not keep the photo's space.
    visible: item !== null
    sourceComponent: {
        switch (kind) {
        case MessageContent.Photo: return photos;
        case MessageContent.Document: return document;
        case MessageContent.Video:
        case MessageContent.Animation:
        case MessageContent.VideoNote: return video;
        case MessageContent.VoiceNote:
        case MessageContent.Audio: return sound;
        case MessageContent.Sticker: return sticker;
        case MessageContent.Location:
        case MessageContent.Venue: return location;
        case MessageContent.Contact: return contact;
        case MessageContent.Poll: return poll;
        case MessageContent.Call: return call;
        case MessageContent.Dice: return dice;
        default: return null;
        }
    }

    Component {
        id: photos

        PhotoAlbum {
            maximumWidth: view.maximumWidth
            items: view.albumItems.length > 0 ? view.albumItems
                                              : [{messageID: view.messageID, mediaPath: view.mediaPath,
                                                  width: view.details.width, height: view.details.height,
                                                  minithumbnail: view.details.minithumbnail,
                                                  downloadProgress: view.downloadProgress}]
            onOpened: id => view.opened(id)
        }
    }
    Component {
        id: document

        DocumentCard {
            width: Math.min(implicitWidth, view.maximumWidth)
            details: view.details
            path: view.mediaPath
            progress: view.downloadProgress
            outgoing: view.outgoing
        }
    }
    Component {
        id: video

        VideoPlayer {
            maximumWidth: view.kind === MessageContent.VideoNote ? 200 : view.maximumWidth
            details: view.details
            path: view.mediaPath
            progress: view.downloadProgress
            isAnimation: view.kind === MessageContent.Animation
            onScreen: view.onScreen
            onOpened: view.opened(view.messageID)
        }
    }
    Component {
        id: sound

        VoicePlayer {
            width: Math.min(implicitWidth, view.maximumWidth)
            details: view.details
            path: view.mediaPath
            playback: view.playback
            isAudio: view.kind === MessageContent.Audio
            outgoing: view.outgoing
        }
    }
    Component {
        id: sticker

        StickerView {
            width: 160
            height: view.details.width > 0 && view.details.height > 0 ? 160 * Math.min(1, view.details.height / view.details.width) : 160
            path: view.mediaPath
            format: view.stickerFormat
            emoji: view.stickerEmoji
            playing: view.onScreen
        }
    }
    Component {
        id: location

        LocationCard {
            width: Math.min(implicitWidth, view.maximumWidth)
            details: view.details
            outgoing: view.outgoing
        }
    }
    Component {
        id: contact

        ContactCard {
            details: view.details
            outgoing: view.outgoing
            onMessageRequested: id => view.contactMessageRequested(id)
        }
    }
    Component {
        id: poll

        PollCard {
            width: Math.min(implicitWidth, view.maximumWidth)
            details: view.details
            outgoing: view.outgoing
        }
    }
    Component {
        id: call

        CallCard {
            details: view.details
            outgoing: view.outgoing
        }
    }
    Component {
        id: dice

        DiceCard {
            details: view.details
        }
    }
}
