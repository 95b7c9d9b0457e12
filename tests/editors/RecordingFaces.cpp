#include "editors/RecordingFaces.h"

#include "model/Contact.h"

void RecordingFound::RedrawContact(const Contact& contact)
{
    Redrawn.push_back(contact.RecID);
}
